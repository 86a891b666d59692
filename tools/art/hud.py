"""hud.py -- what lies over the world: the top strip, the battery gauge, ornaments, flashes and the darkness.

Owns: "LEATHER4.png", "BATTERY_BACKGROUND.png", "egypt_design.png", "egypt_design2.png", "damagefb.png",
      "Blackscreen.png", "VISIBILITY.png", "level_select_torch.png".
The battery bar (a green quad 114 x 33 whose centre sits 290 right of the view's centre when full) shows
through a window of the leather strip and slides left behind the leather as the battery drains.
"""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

import canvas as C
import materials as M
import palette as P
import text as T
from registry import picture

# The gauge window in the 800x64 strip's pixels: the bar spans x 233..347 and y 213.5..246.5 in view
# units around a strip centred at y 230, so 633..747 across and 15.5..48.5 down.
WIN = (633, 15, 747, 49)


def _leather(w, h, seed):
    rng = np.random.default_rng(seed)
    n = C.fbm(w, h, rng, cells=(12, 6, 3, 2))
    pores = rng.random((h, w))
    rgb = C.shade(P.LEATHER, 0.75 + 0.4 * n - 0.12 * (pores > 0.93))
    return C.from_array(np.dstack([np.clip(rgb, 0, 255), np.full((h, w), 255.0)]))


@picture("LEATHER4.png", "800x64", "HUD strip in front of the battery bar: a tooled leather gauge housing with a window")
def leather_strip():
    w, h = 800, 64
    img = C.new(w, h)
    # The housing: leather from the compass seat to past the window, so a draining bar hides under it.
    # A strap behind the hearts, which stand 40 apart from 20 in.
    strap = _leather(252, 36, 42)
    sm = C.SSLayer(252, 36)
    sm.rect((0, 0, 252, 36), (255, 255, 255, 255), radius=14)
    strap.putalpha(sm.image().split()[3])
    img.alpha_composite(strap, dest=(4, 14))
    d0 = ImageDraw.Draw(img)
    for x in range(14, 248, 6):
        d0.line((x, 17, x + 3, 17), fill=P.LEATHER_LIGHT + (255,))
        d0.line((x, 46, x + 3, 46), fill=P.LEATHER_LIGHT + (255,))
    hx0, hx1 = 470, 788
    body = _leather(hx1 - hx0, 50, 41)
    mask = C.SSLayer(hx1 - hx0, 50)
    mask.rect((0, 0, hx1 - hx0, 50), (255, 255, 255, 255), radius=10)
    body.putalpha(mask.image().split()[3])
    img.alpha_composite(body, dest=(hx0, 7))
    d = ImageDraw.Draw(img)
    # Stitching along the edge.
    for x in range(hx0 + 10, hx1 - 10, 6):
        d.line((x, 10, x + 3, 10), fill=P.LEATHER_LIGHT + (255,))
        d.line((x, 53, x + 3, 53), fill=P.LEATHER_LIGHT + (255,))
    # The gauge window: cut out, with a gold bezel around it.
    x0, y0, x1, y1 = WIN
    M.gold_frame(img, (x0 - 4, y0 - 4, x1 + 4, y1 + 4), width=3, radius=3, inner=P.LEATHER_DARK)
    arr = np.array(img)
    arr[y0:y1, x0:x1, 3] = 0
    img = Image.fromarray(arr, "RGBA")
    # Battery glyph at the left of the window and tick marks above it.
    L = C.SSLayer(w, h)
    bx = x1 + 10
    L.rect((bx, 24, bx + 14, 42), P.GOLD + (255,), radius=2)
    L.rect((bx + 4, 20.5, bx + 10, 24.5), P.GOLD_LIGHT + (255,))
    L.poly([(bx + 8, 26), (bx + 3, 34), (bx + 7, 34), (bx + 5, 40), (bx + 11, 31), (bx + 7, 31)],
           P.LEATHER_DARK + (255,))
    img.alpha_composite(L.image())
    for k in range(5):
        tx = x0 + k * (x1 - x0) / 4.0
        d = ImageDraw.Draw(img)
        d.line((tx, y0 - 7, tx, y0 - 5), fill=P.GOLD_LIGHT + (255,))
    return C.outline(img, 1, P.VOID + (200,))


@picture("BATTERY_BACKGROUND.png", "800x64", "HUD strip behind the battery bar: the dark, empty gauge seen through the window")
def battery_background():
    w, h = 800, 64
    img = C.new(w, h)
    x0, y0, x1, y1 = WIN
    d = ImageDraw.Draw(img)
    d.rectangle((x0 - 2, y0 - 2, x1 + 1, y1 + 1), fill=P.CARNELIAN_DARK + (255,))
    for y in range(y0, y1):
        t = (y - y0) / float(y1 - y0)
        d.line((x0 - 2, y, x1 + 1, y), fill=P.mix(P.mix(P.CARNELIAN_DARK, P.VOID, 0.5), P.VOID, t) + (255,))
    for x in range(x0 + 6, x1, 12):
        d.line((x, y0 + 4, x, y1 - 5), fill=P.mix(P.CARNELIAN_DARK, P.VOID, 0.2) + (255,))
    return img


def _frieze_band(w, h, seed, ground, drops):
    """A painted frieze: gold rules, a band of signs on a coloured ground, hanging drops below."""
    img = C.new(w, h)
    d = ImageDraw.Draw(img)
    band = int(h * 0.62)
    d.rectangle((0, 0, w - 1, band - 1), fill=ground + (255,))
    M.stripe_band(img, (0, 0, w, 6), [P.GOLD_LIGHT, P.GOLD, P.GOLD_DARK], [2, 2, 2])
    M.stripe_band(img, (0, band - 5, w, band), [P.GOLD_DARK, P.GOLD, P.GOLD_LIGHT], [1, 2, 2])
    M.hieroglyph_row(img, (6, 7, w - 6, band - 6), seed, band - 13, mode="paint", color=P.GOLD)
    # Drops hanging from the band: alternating colours, clean transparent gaps.
    L = C.SSLayer(w, h)
    step = 16
    for i, x in enumerate(range(0, w, step)):
        c = drops[i % len(drops)]
        L.poly([(x + 2, band), (x + step - 2, band), (x + step - 2, h - 7), (x + step / 2, h - 1), (x + 2, h - 7)],
               P.GOLD_DARK + (255,))
        L.poly([(x + 4, band), (x + step - 4, band), (x + step - 4, h - 8), (x + step / 2, h - 3.5), (x + 4, h - 8)],
               c + (255,))
    img.alpha_composite(L.image())
    return C.outline(img, 1, P.VOID + (220,))


@picture("egypt_design.png", "800x50", "ornament at the top of the level view: gilded frieze of signs on lapis, hanging drops")
def hud_design():
    return _frieze_band(800, 50, 51, P.LAPIS_DARK, [P.TURQUOISE, P.CARNELIAN, P.LAPIS_LIGHT])


@picture("egypt_design2.png", "800x50", "ornament at the top of the menu and level selection: signs on carnelian, drops")
def menu_design():
    return _frieze_band(800, 50, 52, P.mix(P.CARNELIAN_DARK, P.VOID, 0.2), [P.LAPIS_LIGHT, P.GOLD, P.TURQUOISE])


@picture("damagefb.png", "800x600", "red flash on a hit: red at the edges, thinner in the middle (drawn at up to alpha 0.2)")
def damage_flash():
    w, h = 800, 600
    yy, xx = np.mgrid[0:h, 0:w]
    d = np.sqrt(((xx - w / 2) / (w / 2)) ** 2 + ((yy - h / 2) / (h / 2)) ** 2) / np.sqrt(2)
    a = 110 + 145 * np.clip(d * 1.3, 0, 1) ** 1.6
    rgb = np.ones((h, w, 3)) * np.array((220, 24, 16), dtype=np.float64)
    return C.from_array(np.dstack([rgb, np.round(a / 5) * 5]))


@picture("Blackscreen.png", "4000x3000",
         "plain black for the pause dim (this size), the blink and the fades (scales 1 to 22)")
def black():
    return C.new(16, 12, (0, 0, 0, 255))


def _smoothstep(e0, e1, x):
    t = np.clip((x - e0) / (e1 - e0), 0, 1)
    return t * t * (3 - 2 * t)


@picture("VISIBILITY.png", "2800x2100,2550x1950",
         "darkness mask: black except a soft warm light cone from the centre toward +x and a glow about the centre")
def visibility():
    # 1400 x 1050 pixels: two units a pixel at the larger of the two drawn sizes.
    w, h = 1400, 1050
    units = 2.0
    yy, xx = np.mgrid[0:h, 0:w].astype(np.float64)
    ux = (xx + 0.5 - w / 2) * units
    uy = -(yy + 0.5 - h / 2) * units
    r = np.sqrt(ux * ux + uy * uy)
    ang = np.degrees(np.abs(np.arctan2(uy, ux)))
    half = 30.0
    across = 1 - _smoothstep(half - 10, half + 6, ang)
    along = 1 - 0.25 * _smoothstep(0, 380, r) - 0.75 * _smoothstep(380, 760, r)
    cone = across * along
    glow = 1 - _smoothstep(70, 170, r)
    light = np.clip(np.maximum(cone, glow), 0, 1)
    # Blended over the world this gives world x 0.88 light plus a warm veil of 0.08 light: black where
    # dark, and the torch's colour rising evenly with the light, with no brighter rim.
    a = 1 - 0.88 * light
    alpha = 255 * a
    tint = np.clip(0.08 * light / np.maximum(a, 1e-6), 0, 1)
    rgb = np.array(P.TORCH, dtype=np.float64)[None, None, :] * tint[..., None]
    return C.from_array(np.dstack([np.round(rgb / 4) * 4, np.round(alpha)]))


@picture("level_select_torch.png", "2000x2000",
         "level selection torch: dark veil with a warm spot of light 88 right of and 84 below its centre (drawn at alpha 0.3)")
def level_select_torch():
    # The picture is placed 90 left of and 87 above the pointer, so the spot is put back under it.
    w = h = 1000
    units = 2.0
    yy, xx = np.mgrid[0:h, 0:w].astype(np.float64)
    ux = (xx + 0.5 - w / 2) * units - 88
    uy = -(yy + 0.5 - h / 2) * units + 84
    r = np.sqrt(ux * ux + uy * uy)
    light = 1 - _smoothstep(60, 230, r)
    alpha = 255 - 200 * light
    warm = np.array(P.TORCH, dtype=np.float64)
    rgb = warm[None, None, :] * np.clip(light * 1.2, 0, 1)[..., None]
    return C.from_array(np.dstack([np.round(rgb / 4) * 4, np.round(alpha)]))
