"""splash.py -- the two logos of the opening: the publisher Varnholt Harbour and the team Mandrel.

Owns: "Varnholt_Harbour.png" (610 x 178 on screen), "TeamLogo.png" (934 x 672, larger than the view:
      everything that matters stays inside the middle 800 x 600).
"""
import numpy as np
from PIL import Image

import canvas as C
import materials as M
import palette as P
import text as T
from registry import picture


def _lighthouse(L, cx, base, hgt):
    """A lighthouse on a rock with two beams, the publisher's mark."""
    w0, w1 = hgt * 0.16, hgt * 0.09
    L.poly([(cx - hgt * 0.3, base), (cx - hgt * 0.18, base - hgt * 0.1), (cx + hgt * 0.2, base - hgt * 0.08),
            (cx + hgt * 0.32, base)], P.STONE_MID + (255,))
    L.poly([(cx - w0, base - hgt * 0.08), (cx - w1, base - hgt * 0.72), (cx + w1, base - hgt * 0.72),
            (cx + w0, base - hgt * 0.08)], P.CREAM + (255,))
    for k in range(3):
        y = base - hgt * (0.2 + 0.17 * k)
        t = (y - (base - hgt * 0.08)) / (-hgt * 0.64)
        half = w0 + (w1 - w0) * t
        L.poly([(cx - half, y), (cx + half, y), (cx + half * 0.97, y - hgt * 0.07),
                (cx - half * 0.97, y - hgt * 0.07)], P.CARNELIAN + (255,))
    L.rect((cx - w1 * 1.1, base - hgt * 0.86, cx + w1 * 1.1, base - hgt * 0.72), P.FLAME + (255,))
    L.poly([(cx - w1 * 1.4, base - hgt * 0.86), (cx, base - hgt), (cx + w1 * 1.4, base - hgt * 0.86)],
           P.LAPIS + (255,))


@picture("Varnholt_Harbour.png", "610x178", "splash: publisher logo, a lighthouse and the name Varnholt Harbour")
def publisher_logo():
    w, h = 610, 178
    img = C.new(w, h)
    beams = C.SSLayer(w, h)
    beams.poly([(92, 44), (0, 10), (0, 70)], P.FLAME + (110,))
    beams.poly([(92, 44), (200, 8), (200, 74)], P.FLAME + (110,))
    beam = C.to_array(beams.image())
    xs = np.arange(w, dtype=np.float64)
    beam[..., 3] *= np.clip(1 - np.abs(xs - 92) / 110.0, 0, 1)[None, :]
    img.alpha_composite(C.from_array(beam))
    L = C.SSLayer(w, h)
    _lighthouse(L, 92, 168, 150)
    img.alpha_composite(C.outline(L.image(), 2, P.VOID + (255,)))
    # Waves under the rock.
    W = C.SSLayer(w, h)
    for k in range(6):
        x = 20 + k * 26
        W.arc((x, 160, x + 26, 176), 200, 340, P.LAPIS_LIGHT + (255,), 2.5)
    img.alpha_composite(W.image())
    T.gold_text(img, "VARNHOLT", (400, 62), 66, stroke=2, shadow=3, top=P.CREAM, bottom=P.LIMESTONE)
    T.gold_text(img, "HARBOUR", (400, 126), 52, stroke=2, shadow=3, top=P.LAPIS_LIGHT, bottom=P.LAPIS)
    M.stripe_band(img, (232, 158, 570, 162), [P.GOLD], [4])
    return img


@picture("TeamLogo.png", "934x672", "splash: team logo, a gilded mandrel in a ring over the name Mandrel")
def team_logo():
    w, h = 934, 672
    img = C.new(w, h)
    cx, cy = w / 2, 250
    ring = C.SSLayer(w, h)
    ring.ellipse((cx - 150, cy - 150, cx + 150, cy + 150), P.GOLD_DARK + (255,))
    ring.ellipse((cx - 142, cy - 142, cx + 142, cy + 142), P.GOLD + (255,))
    ring.ellipse((cx - 128, cy - 128, cx + 128, cy + 128), P.LAPIS_DEEP + (255,))
    ring.ellipse((cx - 122, cy - 122, cx + 122, cy + 122), P.LAPIS_DARK + (255,))
    img.alpha_composite(ring.image())
    M.hieroglyph_row(img, (cx - 118, cy + 62, cx + 118, cy + 96), 121, 28, mode="paint", color=P.GOLD_DARK)
    # The mandrel: a tapered shaft with collars, lying across the ring, lit from above.
    L = C.SSLayer(w, h)
    L.poly([(cx - 170, cy - 22), (cx + 150, cy - 6), (cx + 186, cy), (cx + 150, cy + 6), (cx - 170, cy + 22)],
           P.GOLD_DARK + (255,))
    L.poly([(cx - 170, cy - 22), (cx + 150, cy - 6), (cx + 186, cy), (cx - 170, cy - 4)], P.GOLD + (255,))
    L.poly([(cx - 170, cy - 22), (cx + 150, cy - 6), (cx + 160, cy - 4), (cx - 170, cy - 14)],
           P.GOLD_LIGHT + (255,))
    for x, half in ((cx - 120, 30), (cx - 40, 26), (cx + 40, 21)):
        L.rect((x - 7, cy - half, x + 7, cy + half), P.TURQUOISE_DARK + (255,), radius=3)
        L.rect((x - 5, cy - half, x - 1, cy + half), P.TURQUOISE + (255,))
    L.rect((cx - 196, cy - 32, cx - 166, cy + 32), P.CARNELIAN + (255,), radius=5)
    L.rect((cx - 192, cy - 32, cx - 184, cy + 32), P.CARNELIAN_LIGHT + (255,))
    img.alpha_composite(C.outline(L.image(), 2, P.VOID + (255,)))
    T.gold_text(img, "MANDREL", (cx, 486), 96, stroke=3, shadow=4)
    T.plain_text(img, "a small team making games", (cx, 560), 28, P.LIMESTONE, P.FONT_BODY)
    return C.glow(img, 14, P.TURQUOISE_DARK + (0,), 0.5)
