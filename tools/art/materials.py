"""materials.py -- the tomb's surfaces: stone blocks, carved hieroglyphs, painted friezes, gold frames, papyrus.

Owns: every texture that more than one picture is cut from, so platforms, walls, backdrops and panels
      share one stone, one gold and one carving style.
Read by: world, hud, buttons, screens and the level previews.
"""
from functools import lru_cache

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

import canvas as C
import palette as P
import text as T

# Signs that read well small: seated man, eye, falcon, owl, ibis, feather, cobra, scarab, reed, sun,
# water, djed, ankh, was, lotus, bread, bowl, crocodile, netjer flag, house.
GLYPHS = [0x13000, 0x1300A, 0x13050, 0x13080, 0x13143, 0x13153, 0x1315D, 0x13171, 0x1317E, 0x13184,
          0x13193, 0x131A3, 0x131B0, 0x131CB, 0x131F3, 0x13216, 0x132B9, 0x132BD, 0x132F9, 0x13300,
          0x1330B, 0x133CF, 0x13091, 0x13250]


@lru_cache(maxsize=None)
def glyph_mask(code, size, bold=1):
    """The ink of one hieroglyph at a pixel height, thickened so it survives at small sizes."""
    f = T.font(P.FONT_HIEROGLYPHS, size)
    pad = size
    m = Image.new("L", (size * 2 + pad, size * 2 + pad), 0)
    ImageDraw.Draw(m).text((pad // 2, pad // 2), chr(code), font=f, fill=255)
    if bold > 0:
        m = m.filter(ImageFilter.MaxFilter(2 * bold + 1))
    box = m.getbbox()
    return m.crop(box) if box else m


def carve(img, mask, xy, depth=0.55, light=0.35):
    """Cut a mask into a picture as a recess lit from the top left: a dark floor, a lit lower-right lip."""
    x, y = int(xy[0]), int(xy[1])
    w, h = mask.size
    dark = Image.new("RGBA", (w + 1, h + 1), P.VOID + (0,))
    m = Image.new("L", (w + 1, h + 1), 0)
    m.paste(mask, (0, 0))
    dark.putalpha(m.point(lambda v: int(v * depth)))
    lit_mask = Image.new("L", (w + 1, h + 1), 0)
    lit_mask.paste(mask, (1, 1))
    lit_mask = Image.fromarray(np.clip(np.asarray(lit_mask, dtype=np.int16) - np.asarray(m, dtype=np.int16),
                                       0, 255).astype(np.uint8), "L")
    lit = Image.new("RGBA", (w + 1, h + 1), P.SANDSTONE_HIGH + (0,))
    lit.putalpha(lit_mask.point(lambda v: int(v * light)))
    img.alpha_composite(dark, dest=(x, y))
    img.alpha_composite(lit, dest=(x, y))
    return img


def paint_mask(img, mask, xy, color, alpha=255):
    layer = Image.new("RGBA", mask.size, color + (0,))
    layer.putalpha(mask.point(lambda v: v * alpha // 255))
    img.alpha_composite(layer, dest=(int(xy[0]), int(xy[1])))
    return img


def _courses(h, course_h, rng):
    ys, y = [], 0
    while y < h:
        step = int(course_h * rng.uniform(0.85, 1.15)) if course_h > 8 else course_h
        ys.append((y, min(h, y + step)))
        y += step
    return ys


def stone_blocks(w, h, seed, course_h=24, block_w=(40, 80), base=P.SANDSTONE, dark=P.STONE_DARK,
                 mortar=P.MORTAR, contrast=1.0, bevel=2, cracks=6, vertical=False, aligned=False):
    """Opaque dressed-stone masonry: courses of blocks with bevels, grain and a few cracks."""
    if vertical:
        img = stone_blocks(h, w, seed, course_h, block_w, base, dark, mortar, contrast, bevel, cracks, False,
                           aligned)
        return img.transpose(Image.Transpose.ROTATE_90)
    rng = np.random.default_rng(seed)
    grain = C.fbm(w, h, rng, cells=(24, 12, 6, 3))
    fine = rng.random((h, w))
    rgb = np.zeros((h, w, 3))
    base_c = np.array(base, dtype=np.float64)
    dark_c = np.array(dark, dtype=np.float64)
    for (y0, y1) in _courses(h, course_h, rng):
        x = 0 if aligned else -int(rng.uniform(0, block_w[1]))
        while x < w:
            bw = int(rng.uniform(block_w[0], block_w[1]))
            x0, x1 = max(0, x), min(w, x + bw)
            if x1 > x0:
                tone = rng.uniform(0.82, 1.08)
                hue = rng.uniform(-0.04, 0.04)
                col = base_c * tone * np.array([1 + hue, 1.0, 1 - hue])
                g = grain[y0:y1, x0:x1]
                f = fine[y0:y1, x0:x1]
                t = (0.78 + 0.32 * g + 0.08 * f - 0.04) * contrast + (1 - contrast)
                block = col[None, None, :] * t[..., None]
                bh, bwid = y1 - y0, x1 - x0
                yy, xx = np.mgrid[0:bh, 0:bwid]
                top = yy < bevel
                left = (xx < bevel) & (x >= 0)
                bottom = yy >= bh - bevel - 1
                right = xx >= bwid - bevel - 1
                block[top | left] = block[top | left] * 1.18
                block[bottom | right] = block[bottom | right] * 0.72
                block[yy == bh - 1] = mortar
                block[(xx == bwid - 1) & (x + bw <= w)] = mortar
                rgb[y0:y1, x0:x1] = block
            x += bw
    rgb = _cracks(rgb, rng, cracks, dark_c)
    rgb = np.clip(rgb, 0, 255)
    return C.from_array(np.dstack([rgb, np.full((h, w), 255.0)]))


def _cracks(rgb, rng, count, dark_c):
    h, w, _ = rgb.shape
    for _ in range(count):
        x, y = rng.uniform(0, w), rng.uniform(0, h)
        ang = rng.uniform(0, np.pi * 2)
        for _ in range(int(rng.uniform(6, 22))):
            ang += rng.normal(0, 0.5)
            x += np.cos(ang) * 1.2
            y += np.sin(ang) * 1.2
            xi, yi = int(x), int(y)
            if 0 <= xi < w and 0 <= yi < h:
                rgb[yi, xi] = rgb[yi, xi] * 0.45 + dark_c * 0.2
    return rgb


def darken(img, factor, toward=P.VOID):
    """Pull a picture's colours toward a dark colour, keeping its alpha."""
    a = C.to_array(img)
    t = np.array(toward, dtype=np.float64)
    a[..., :3] = a[..., :3] * factor + t[None, None, :] * (1 - factor)
    return C.from_array(a)


def vignette(img, strength=0.6, power=2.0):
    """Darker toward the edges, as a torch-lit chamber falls off into shadow."""
    a = C.to_array(img)
    h, w = a.shape[:2]
    yy, xx = np.mgrid[0:h, 0:w]
    d = np.sqrt(((xx - w / 2) / (w / 2)) ** 2 + ((yy - h / 2) / (h / 2)) ** 2) / np.sqrt(2)
    f = 1 - strength * np.clip(d, 0, 1) ** power
    a[..., :3] *= f[..., None]
    return C.from_array(a)


def hieroglyph_row(img, box, seed, size, mode="carve", color=P.GOLD, spacing=1.35):
    """A line of signs centred in a box (x0, y0, x1, y1), carved or painted."""
    rng = np.random.default_rng(seed)
    x0, y0, x1, y1 = box
    gap = size * (spacing - 1) + 2
    masks, used = [], 0.0
    while True:
        code = GLYPHS[int(rng.integers(0, len(GLYPHS)))]
        m = glyph_mask(code, size, 1 if size >= 14 else 0)
        if m.size[1] > (y1 - y0):
            m = m.resize((max(1, int(m.size[0] * (y1 - y0) / m.size[1])), int(y1 - y0)), Image.LANCZOS)
        need = m.size[0] + (gap if masks else 0)
        if used + need > (x1 - x0) - size * 0.4:
            break
        masks.append(m)
        used += need
    x = x0 + ((x1 - x0) - used) / 2
    for m in masks:
        y = y0 + ((y1 - y0) - m.size[1]) / 2
        if mode == "carve":
            carve(img, m, (x, y))
        else:
            paint_mask(img, m, (x, y), color)
        x += m.size[0] + gap
    return img


def hieroglyph_column(img, box, seed, size, mode="carve", color=P.GOLD):
    """A column of signs down a box, as on a pillar or stela."""
    rng = np.random.default_rng(seed)
    x0, y0, x1, y1 = box
    y = y0 + 2
    while True:
        code = GLYPHS[int(rng.integers(0, len(GLYPHS)))]
        m = glyph_mask(code, size, 1 if size >= 10 else 0)
        if m.size[0] > (x1 - x0):
            m = m.resize((int(x1 - x0), max(1, int(m.size[1] * (x1 - x0) / m.size[0]))), Image.LANCZOS)
        if y + m.size[1] > y1:
            break
        x = x0 + ((x1 - x0) - m.size[0]) / 2
        if mode == "carve":
            carve(img, m, (x, y), depth=0.75, light=0.45)
        else:
            paint_mask(img, m, (x, y), color)
        y += m.size[1] + max(3, size * 0.3)
    return img


def stripe_band(img, box, colors, widths):
    """Horizontal painted register lines, top to bottom, inside a box."""
    x0, y0, x1, y1 = box
    d = ImageDraw.Draw(img)
    y = y0
    for c, wid in zip(colors, widths):
        d.rectangle((x0, y, x1 - 1, y + wid - 1), fill=c + (255,))
        y += wid
    return img


def khekher_band(img, box, seed=0):
    """The frieze of alternating lapis, gold and turquoise blocks that crowns tomb walls."""
    x0, y0, x1, y1 = box
    d = ImageDraw.Draw(img)
    cols = [P.LAPIS, P.GOLD, P.TURQUOISE, P.GOLD, P.CARNELIAN, P.GOLD]
    cw = max(6, int((y1 - y0) * 0.55))
    x, i = x0, 0
    while x < x1:
        c = cols[i % len(cols)]
        d.rectangle((x, y0, min(x1, x + cw) - 2, y1 - 1), fill=c + (255,))
        d.rectangle((x, y0, min(x1, x + cw) - 2, y0), fill=C_light(c) + (255,))
        d.rectangle((min(x1, x + cw) - 1, y0, min(x1, x + cw) - 1, y1 - 1), fill=P.SHADOW + (255,))
        x += cw
        i += 1
    return img


def C_light(c):
    return P.mix(c, (255, 255, 255), 0.3)


def gold_frame(img, box, width=3, radius=0, inner=P.GOLD_DEEP):
    """A gilded border: bright outer line, dark inner line; transparent centre."""
    x0, y0, x1, y1 = box
    d = ImageDraw.Draw(img)
    for i in range(width):
        t = i / max(1, width - 1)
        c = P.mix(P.GOLD_LIGHT, P.GOLD_DARK, t)
        d.rounded_rectangle((x0 + i, y0 + i, x1 - 1 - i, y1 - 1 - i), radius=max(0, radius - i),
                            outline=c + (255,), width=1)
    d.rounded_rectangle((x0 + width, y0 + width, x1 - 1 - width, y1 - 1 - width),
                        radius=max(0, radius - width), outline=inner + (255,), width=1)
    return img


def papyrus(w, h, seed, base=P.PAPYRUS):
    """A sheet of papyrus: crossed fibres, warm blotches, darker edges."""
    rng = np.random.default_rng(seed)
    blot = C.fbm(w, h, rng, cells=(40, 20, 10))
    fib_h = C.value_noise(w, h, 2, rng)
    fib_v = C.value_noise(w, h, 2, rng)
    streak_h = np.repeat(rng.random((h, 1)), w, axis=1)
    streak_v = np.repeat(rng.random((1, w)), h, axis=0)
    t = 0.86 + 0.12 * blot + 0.05 * (streak_h - 0.5) + 0.04 * (streak_v - 0.5) + 0.03 * (fib_h - fib_v)
    rgb = C.shade(base, t)
    img = C.from_array(np.dstack([np.clip(rgb, 0, 255), np.full((h, w), 255.0)]))
    return vignette(img, 0.35, 3.0)


def stone_panel(w, h, seed, base=P.STONE_MID, border=True, alpha=255, radius=6):
    """A carved slab for pages and boxes: dark stone, gold border, rounded corners cut clean."""
    slab = stone_blocks(w, h, seed, course_h=max(16, h // 5), block_w=(w // 4, w // 2), base=base,
                        cracks=4, bevel=1)
    slab = vignette(slab, 0.45, 2.5)
    mask = C.SSLayer(w, h)
    mask.rect((0, 0, w, h), fill=(255, 255, 255, alpha), radius=radius)
    m = mask.image().split()[3]
    slab.putalpha(m)
    if border:
        gold_frame(slab, (2, 2, w - 2, h - 2), width=3, radius=max(0, radius - 2))
        slab.putalpha(Image.fromarray(np.minimum(np.asarray(slab.split()[3]), np.asarray(m)), "L"))
    return slab


def lapis_plate(w, h, seed, radius=5, alpha=235):
    """The button face: polished lapis with a gold rim, a light top edge, flecks of pyrite."""
    rng = np.random.default_rng(seed)
    n = C.fbm(w, h, rng, cells=(16, 8, 4))
    ys = np.linspace(1.15, 0.75, h)[:, None]
    rgb = C.shade(P.LAPIS, (0.7 + 0.45 * n) * ys)
    fleck = rng.random((h, w)) > 0.994
    rgb[fleck] = rgb[fleck] * 0.4 + np.array(P.GOLD, dtype=np.float64) * 0.6
    img = C.from_array(np.dstack([np.clip(rgb, 0, 255), np.full((h, w), 255.0)]))
    layer = C.SSLayer(w, h)
    layer.rect((0, 0, w, h), fill=(255, 255, 255, alpha), radius=radius)
    m = layer.image().split()[3]
    gold_frame(img, (0, 0, w, h), width=2, radius=radius, inner=P.LAPIS_DEEP)
    img.putalpha(m)
    return img
