"""world.py -- the solid things of a level: platforms, walls, the dropping slab, the boulder, the backdrop.

Owns: "HORIPLATFORMTEXT.png", "VERTPLATFORMTEXT.png", "DROPPING_PLATFORM.png", "boulder.png",
      "BACKGROUND.png". Solids are bright dressed stone so they stand out from the darker, flatter wall.
"""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

import canvas as C
import materials as M
import palette as P
from registry import picture


@picture("HORIPLATFORMTEXT.png", "100x20,150x20", "horizontal platform, a carved limestone lintel",
         blended=False, clear="none",
         note="the long platform stretches it by half: courses and painted band run evenly along it, so it reads as a longer lintel")
def horizontal_platform():
    w, h = 100, 20
    img = M.stone_blocks(w, h, 11, course_h=h, block_w=(30, 40), base=P.SANDSTONE_LIGHT, bevel=1, cracks=2)
    d = ImageDraw.Draw(img)
    d.rectangle((0, 0, w - 1, 1), fill=P.SANDSTONE_HIGH + (255,))
    d.rectangle((0, 2, w - 1, 2), fill=P.GOLD + (255,))
    d.rectangle((0, 3, w - 1, 3), fill=P.GOLD_DARK + (255,))
    # A painted lapis and gold band along the face, the mark of a walkable ledge.
    for x in range(0, w, 10):
        d.rectangle((x + 1, 8, x + 7, 12), fill=(P.LAPIS if (x // 10) % 2 == 0 else P.TURQUOISE_DARK) + (255,))
        d.rectangle((x + 1, 8, x + 7, 8), fill=P.LAPIS_LIGHT + (255,))
    d.rectangle((0, h - 2, w - 1, h - 1), fill=P.STONE_DARK + (255,))
    d.line((0, h - 3, w - 1, h - 3), fill=P.SANDSTONE + (255,))
    return img


@picture("VERTPLATFORMTEXT.png", "20x100", "solid wall, a sandstone pillar with carved signs", blended=False, clear="none")
def vertical_wall():
    w, h = 20, 100
    img = M.stone_blocks(w, h, 12, course_h=25, block_w=(40, 41), base=P.SANDSTONE, bevel=1, cracks=2,
                           aligned=True)
    M.hieroglyph_column(img, (4, 6, 16, 94), 5, 11)
    d = ImageDraw.Draw(img)
    d.rectangle((0, 0, 1, h - 1), fill=P.SANDSTONE_HIGH + (255,))
    d.rectangle((w - 2, 0, w - 1, h - 1), fill=P.STONE_DARK + (255,))
    d.rectangle((0, 0, w - 1, 2), fill=P.GOLD + (255,))
    d.rectangle((0, h - 3, w - 1, h - 1), fill=P.GOLD_DARK + (255,))
    return img


@picture("DROPPING_PLATFORM.png", "20x100", "falling slab (drop wall, moving wall), red granite marked with gold arrows",
         blended=False, clear="none")
def dropping_slab():
    w, h = 20, 100
    granite = (150, 84, 76)
    img = M.stone_blocks(w, h, 13, course_h=h, block_w=(40, 41), base=granite, bevel=2, cracks=5,
                           aligned=True)
    rng = np.random.default_rng(13)
    a = C.to_array(img)
    speck = rng.random((h, w))
    a[speck > 0.9, :3] *= 0.55
    a[speck < 0.05, :3] = np.array(P.LIMESTONE, dtype=np.float64)
    img = C.from_array(a)
    lay = C.SSLayer(w, h)
    for y in (18, 44, 70):
        lay.poly([(4, y), (16, y), (10, y + 10)], fill=P.GOLD + (255,))
        lay.poly([(6, y + 1), (14, y + 1), (10, y + 7)], fill=P.GOLD_LIGHT + (255,))
    img.alpha_composite(lay.image())
    d = ImageDraw.Draw(img)
    d.rectangle((0, 0, w - 1, h - 1), outline=P.CARNELIAN_DARK + (255,))
    return img


@picture("boulder.png", "506x298", "the pursuing boulder of the last level: a huge rolling stone, dust trailing left")
def boulder():
    w, h = 506, 298
    img = C.new(w, h)
    rng = np.random.default_rng(21)
    # Dust and grit kicked up behind the stone, thinning out to the left.
    dust = C.fbm(w, h, rng, cells=(48, 24, 12))
    yy, xx = np.mgrid[0:h, 0:w]
    fall = np.clip((xx - 30) / 260.0, 0, 1) ** 1.5 * np.clip((yy - 40) / 200.0, 0, 1)
    alpha = np.clip((dust - 0.35) * 2.2, 0, 1) * fall * 200
    rgb = C.shade(P.SANDSTONE, 0.55 + 0.4 * dust)
    img = C.from_array(np.dstack([rgb, alpha]))
    # The stone itself: a rough disc touching the right edge and the ground.
    r = 148.0
    cx, cy = w - r - 1, h - r - 1
    ang = np.arctan2(yy - cy, xx - cx)
    rough = np.zeros_like(ang)
    for k, amp in ((3, 5.0), (5, 3.5), (9, 2.0), (17, 1.2)):
        ph = rng.uniform(0, 2 * np.pi)
        rough += amp * np.sin(k * ang + ph)
    dist = np.sqrt((xx - cx) ** 2 + (yy - cy) ** 2)
    edge = r - 6 + rough
    inside = np.clip(edge - dist + 0.5, 0, 1)
    n = C.fbm(w, h, rng, cells=(40, 20, 10, 5, 2))
    # Lit from the upper right, where the fleeing explorer's torch is, deep shadow at the lower left.
    lx, ly = 0.6, -0.62
    nz = np.sqrt(np.clip(1 - (dist / r) ** 2, 0, 1))
    nx, ny = (xx - cx) / r, (yy - cy) / r
    lam = np.clip((nx * lx + ny * ly) + nz * 0.45, 0, 1.2)
    tone = (0.25 + 0.75 * lam) * (0.75 + 0.4 * n)
    col = C.shade(P.SANDSTONE, tone)
    warm = np.array(P.TORCH, dtype=np.float64)
    col = col + warm[None, None, :] * 0.08 * lam[..., None]
    # Strata lines and chips.
    strata = (np.sin((yy - cy) * 0.09 + (xx - cx) * 0.05 + n * 6) > 0.93)
    col[strata] *= 0.7
    chips = rng.random((h, w)) > 0.992
    col[chips] *= 0.5
    rim = np.clip(1 - np.abs(edge - dist) / 2.5, 0, 1) * (dist < edge + 2)
    col = col * (1 - 0.6 * rim[..., None])
    stone = C.from_array(np.dstack([np.clip(col, 0, 255), inside * 255]))
    # Streaks of grit behind the stone, thinning out to the left.
    streaks = C.SSLayer(w, h)
    for i, y in enumerate((cy - 70, cy - 20, cy + 35, cy + 85, cy + 125)):
        x1 = cx - r * 0.85 - (i % 2) * 18
        for k in range(6):
            a = int(110 * (1 - k / 6.0))
            streaks.line([(x1 - 22 * (k + 1), y), (x1 - 22 * k, y)], fill=P.SANDSTONE_LIGHT + (a,), width=2.5)
    img.alpha_composite(streaks.image().filter(ImageFilter.GaussianBlur(0.6)))
    img.alpha_composite(stone)
    return img


def _background_wall(w, h, seed):
    img = M.stone_blocks(w, h, seed, course_h=55, block_w=(90, 190), base=P.STONE_MID, bevel=2, cracks=120,
                         contrast=0.8)
    rng = np.random.default_rng(seed + 1)
    # Two painted registers: a frieze band with a line of signs, and a floor-level dado.
    for band_y in (150, 880):
        M.stripe_band(img, (0, band_y, w, band_y + 8), [P.GOLD_DARK, P.LAPIS_DARK, P.GOLD_DARK], [2, 4, 2])
        M.hieroglyph_row(img, (0, band_y + 14, w, band_y + 54), seed + band_y, 34, mode="paint",
                         color=P.GOLD_DARK)
        M.stripe_band(img, (0, band_y + 60, w, band_y + 68), [P.GOLD_DARK, P.TURQUOISE_DARK, P.GOLD_DARK],
                      [2, 4, 2])
    # Carved columns of text between the registers, at irregular spacing.
    x = int(rng.uniform(60, 160))
    while x < w - 60:
        M.hieroglyph_column(img, (x, 240, x + 36, 860), seed + x, 30)
        x += int(rng.uniform(260, 420))
    # A khekher frieze along the top edge.
    M.khekher_band(img, (0, 0, w, 26))
    M.stripe_band(img, (0, 26, w, 32), [P.GOLD_DARK, P.SHADOW], [3, 3])
    return img


@picture("BACKGROUND.png", "3100x1100", "level backdrop: a deep tomb wall with friezes and carved columns, dark and low in contrast",
         blended=False, clear="none")
def background():
    w, h = 3100, 1100
    img = _background_wall(w, h, 31)
    img = M.darken(img, 0.5, toward=P.VOID)
    img = M.vignette(img, 0.35, 2.0)
    img = _fade_edges(img, 240)
    return _posterize(img, 5)


def _fade_edges(img, margin):
    """Let every edge sink into the tomb's dark (the black the game clears to): the backdrop is smaller than the
    camera's reach, and the torch must never find where the wall ends."""
    a = C.to_array(img)
    h, w = a.shape[:2]
    yy, xx = np.mgrid[0:h, 0:w]
    nearest = np.minimum(np.minimum(xx, w - 1 - xx), np.minimum(yy, h - 1 - yy)).astype(np.float64)
    t = np.clip(nearest / margin, 0, 1)
    a[..., :3] *= (t * t * (3 - 2 * t))[..., None]
    return C.from_array(a)


def _posterize(img, levels_step):
    """Round colours to a coarse step: invisible on a dark wall, and the file shrinks a lot."""
    a = np.asarray(img).astype(np.int32)
    a[..., :3] = (a[..., :3] // levels_step) * levels_step
    return Image.fromarray(a.astype(np.uint8), "RGBA")
