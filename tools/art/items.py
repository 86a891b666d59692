"""items.py -- small things that must be known at a glance: exit, pickups, hearts, compass, arrows, cursor.

Owns: "PORTAL_EXIT.png", "POWERUP1.png", "Battery_pow.png", "ATTRI_HP_TEX.png", "ATTRI_BATT_TEX.png",
      "COMPASS.png", "COMPASS_BG1.png", "INVERTARROWUP.png", "INVERTARROWDOWN.png", "CURSORTEX.png"
      (and "cursorTEX.png"), "TEX_INDICATOR_TEX.png", "STAT_BAR_TEX.png", "shimmeringexit.png",
      "shimmeringlight.png".
"""
import numpy as np
from PIL import Image, ImageFilter, ImageOps

import canvas as C
import palette as P
from registry import alias, picture


def _a(c, a=255):
    return c + (a,)


def radial(w, h, cx, cy, rx, ry, color, peak=255, power=1.5):
    """A soft round light: alpha peak at the centre falling to 0 at the radii."""
    yy, xx = np.mgrid[0:h, 0:w]
    d = np.sqrt(((xx + 0.5 - cx) / rx) ** 2 + ((yy + 0.5 - cy) / ry) ** 2)
    a = np.clip(1 - d, 0, 1) ** power * peak
    rgb = np.ones((h, w, 3)) * np.array(color, dtype=np.float64)
    return C.from_array(np.dstack([rgb, a]))


@picture("PORTAL_EXIT.png", "55x55", "exit portal: a small pylon gate full of swirling turquoise light under a winged sun")
def exit_portal(k=1):
    """The gate at 55x55, or k times larger, drawn again with that detail (the end screen's)."""
    w = h = 55
    img = radial(w * k, h * k, 27.5 * k, 30 * k, 27 * k, 27 * k, P.TURQUOISE, 120, 2.0)
    L = C.SSLayer(w, h, k=k)
    # Pylon: sloped sandstone towers with gold edges.
    L.poly([(8, 53), (13, 12), (42, 12), (47, 53)], _a(P.SANDSTONE))
    L.poly([(8, 53), (13, 12), (16, 12), (12, 53)], _a(P.SANDSTONE_HIGH))
    L.poly([(43, 53), (39, 12), (42, 12), (47, 53)], _a(P.STONE_MID))
    L.rect((10, 8.5, 45, 13), _a(P.GOLD))
    L.rect((10, 12, 45, 13.5), _a(P.GOLD_DARK))
    # Doorway of light.
    L.rect((17.5, 19, 37.5, 53), _a(P.TURQUOISE_DARK))
    L.rect((19.5, 21, 35.5, 53), _a(P.TURQUOISE))
    L.rect((22.5, 24, 32.5, 53), _a(P.TURQUOISE_LIGHT))
    L.rect((25.5, 28, 29.5, 53), _a(P.WHITE))
    # Winged sun disc on the lintel.
    L.poly([(14, 10.5), (24, 7.5), (24, 11.5)], _a(P.LAPIS_LIGHT))
    L.poly([(41, 10.5), (31, 7.5), (31, 11.5)], _a(P.LAPIS_LIGHT))
    L.ellipse((23.5, 5, 31.5, 13), _a(P.CARNELIAN))
    L.ellipse((25, 6.2, 29, 9.5), _a(P.CARNELIAN_LIGHT))
    L.rect((6, 52, 49, 55), _a(P.GOLD_DARK))
    img.alpha_composite(C.outline(L.image(), k, P.VOID + (220,)))
    return img


@picture("POWERUP1.png", "30x30", "zoom power-up: the golden eye of Horus on a lapis disc, glowing")
def power_eye():
    w = h = 30
    img = radial(w, h, 15, 15, 15, 15, P.TURQUOISE_LIGHT, 170, 1.6)
    L = C.SSLayer(w, h)
    L.ellipse((3, 3, 27, 27), _a(P.GOLD))
    L.ellipse((4.5, 4.5, 25.5, 25.5), _a(P.LAPIS))
    L.ellipse((5.5, 5.5, 24.5, 20), _a(P.LAPIS_LIGHT, 90))
    # The eye: brow, almond, pupil, the falcon's cheek marks.
    L.line([(7.5, 9.6), (15, 8.2), (23, 9.2)], _a(P.GOLD_LIGHT), 1.4)
    L.poly([(7, 14), (11, 11.2), (18, 11), (23.5, 13.6), (18, 16.6), (11, 16.6)], _a(P.CREAM))
    L.ellipse((12.6, 11, 17.4, 16.6), _a(P.VOID))
    L.ellipse((13.6, 12, 15.2, 13.6), _a(P.WHITE))
    L.line([(7, 14), (11, 16.6), (18, 16.6), (23.5, 13.6)], _a(P.GOLD_LIGHT), 1.0)
    L.line([(12.5, 16.6), (11.5, 22.5)], _a(P.GOLD_LIGHT), 1.3)
    L.line([(16.5, 16.6), (19.5, 20.5), (22.5, 20.8), (23, 18.6), (21.2, 18.4)], _a(P.GOLD_LIGHT), 1.2)
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (200,)))
    return img


def _battery(w, h, x0, y0, x1, y1, bolt=True):
    """An upright dry cell: gold cap, turquoise body, gold bands, a white lightning bolt."""
    L = C.SSLayer(w, h)
    bw = x1 - x0
    cx = (x0 + x1) / 2
    L.rect((cx - bw * 0.22, y0, cx + bw * 0.22, y0 + bw * 0.3), _a(P.GOLD_LIGHT), radius=1)
    L.rect((x0, y0 + bw * 0.25, x1, y1), _a(P.TURQUOISE_DARK), radius=bw * 0.18)
    L.rect((x0 + bw * 0.12, y0 + bw * 0.25, x1 - bw * 0.3, y1), _a(P.TURQUOISE))
    L.rect((x0 + bw * 0.2, y0 + bw * 0.25, x0 + bw * 0.35, y1), _a(P.TURQUOISE_LIGHT))
    band = max(1.5, (y1 - y0) * 0.07)
    L.rect((x0, y0 + bw * 0.25, x1, y0 + bw * 0.25 + band), _a(P.GOLD))
    L.rect((x0, y1 - band, x1, y1), _a(P.GOLD))
    if bolt:
        my = (y0 + y1) / 2 + bw * 0.1
        s = bw * 0.5
        L.poly([(cx + s * 0.25, my - s * 1.1), (cx - s * 0.55, my + s * 0.15), (cx - s * 0.02, my + s * 0.15),
                (cx - s * 0.25, my + s * 1.1), (cx + s * 0.55, my - s * 0.15), (cx + s * 0.02, my - s * 0.15)],
               _a(P.WHITE))
    return L.image()


@picture("Battery_pow.png", "40x40", "battery pickup: an upright turquoise cell with a lightning bolt, glowing")
def battery_pickup():
    w = h = 40
    img = radial(w, h, 20, 21, 17, 20, P.TURQUOISE_LIGHT, 150, 1.8)
    cell = _battery(w, h, 12.5, 4, 27.5, 37)
    img.alpha_composite(C.outline(cell, 1, P.VOID + (230,)))
    return img


@picture("ATTRI_BATT_TEX.png", "90x75", "battery attribute icon on the level selection screen")
def battery_attribute():
    w, h = 90, 75
    img = radial(w, h, 45, 38, 44, 37, P.TURQUOISE, 90, 1.6)
    cell = _battery(w, h, 31, 5, 59, 71)
    img.alpha_composite(C.outline(cell, 2, P.VOID + (230,)))
    return img


def _heart(w, h, top=0.0):
    """A carnelian heart across the width of the picture from `top` down, thick gold rim, one highlight:
    it survives being shrunk. Above it, when there is room, the gold loop of an amulet."""
    L = C.SSLayer(w, h)
    pts = []
    for i in range(101):
        t = np.pi * 2 * i / 100.0
        x = 16 * np.sin(t) ** 3
        y = -(13 * np.cos(t) - 5 * np.cos(2 * t) - 2 * np.cos(3 * t) - np.cos(4 * t))
        pts.append((x, y))
    xs = [p[0] for p in pts]
    ys = [p[1] for p in pts]
    hh = h - top
    sx = (w - 2.0) / (max(xs) - min(xs))
    sy = (hh - 2.0) / (max(ys) - min(ys))
    outer = [(1 + (x - min(xs)) * sx, top + 1 + (y - min(ys)) * sy) for (x, y) in pts]
    cxh, cyh = w / 2, top + hh / 2
    inner = [(cxh + (x - cxh) * 0.8, cyh + (y - cyh) * 0.8 - hh * 0.02) for (x, y) in outer]
    if top >= 4:
        # The loop stands on the cleft of the heart, as on an amulet worn on a cord.
        r = min(top * 0.62, w * 0.16)
        cy = top - r * 0.55 + 1.5
        L.ellipse((w / 2 - r, cy - r, w / 2 + r, cy + r), _a(P.GOLD_DARK))
        L.ellipse((w / 2 - r * 0.45, cy - r * 0.45, w / 2 + r * 0.45, cy + r * 0.45), (0, 0, 0, 0))
        L.rect((w / 2 - r * 0.7, top + 0.5, w / 2 + r * 0.7, top + 4.5), _a(P.GOLD), radius=1)
    L.poly(outer, _a(P.GOLD))
    L.poly(inner, _a(P.CARNELIAN))
    L.ellipse((w * 0.24, top + hh * 0.2, w * 0.44, top + hh * 0.38), _a(P.CARNELIAN_LIGHT))
    return C.outline(L.image(), 1, P.VOID + (230,))


@picture("ATTRI_HP_TEX.png", "25x25,43.5x84",
         "heart amulet: one hit point in the HUD; also the hit point icon of the attribute panel",
         note="one file for a square HUD mesh and a tall panel mesh: a heart 0.9 wide to 1 high under a gold "
              "loop, 36x48, reads as a full heart squashed in the HUD and as a tall amulet on the panel")
def heart():
    return _heart(36, 48, top=8)


def _compass_face(w, h):
    L = C.SSLayer(w, h)
    L.ellipse((1, 1, w - 1, h - 1), _a(P.GOLD_DARK))
    L.ellipse((2.5, 2.5, w - 2.5, h - 2.5), _a(P.GOLD))
    L.ellipse((5.5, 5.5, w - 5.5, h - 5.5), _a(P.LAPIS_DARK))
    L.ellipse((7, 7, w - 7, h - 7), _a(P.LAPIS))
    cx, cy = w / 2, h / 2
    for k in range(12):
        a = k * np.pi / 6
        r0, r1 = (w / 2 - 9, w / 2 - 6.5) if k % 3 else (w / 2 - 11, w / 2 - 6.5)
        L.line([(cx + r0 * np.cos(a), cy + r0 * np.sin(a)), (cx + r1 * np.cos(a), cy + r1 * np.sin(a))],
               _a(P.GOLD_LIGHT), 1.2)
    return L


@picture("COMPASS.png", "50x50", "gravity compass: gold dial whose red needle points the way gravity pulls (down at rest)")
def compass():
    w = h = 50
    L = _compass_face(w, h)
    cx, cy = w / 2, h / 2
    # The needle: red half toward the ground, cream half toward the sky.
    L.poly([(cx - 4.5, cy), (cx + 4.5, cy), (cx, cy + 17)], _a(P.CARNELIAN))
    L.poly([(cx, cy), (cx + 4.5, cy), (cx, cy + 17)], _a(P.CARNELIAN_LIGHT))
    L.poly([(cx - 4.5, cy), (cx + 4.5, cy), (cx, cy - 15)], _a(P.CREAM))
    L.poly([(cx, cy), (cx + 4.5, cy), (cx, cy - 15)], _a(P.PAPYRUS_DARK))
    L.ellipse((cx - 2.5, cy - 2.5, cx + 2.5, cy + 2.5), _a(P.GOLD_LIGHT))
    # A little ground bar under the red tip says "down".
    L.rect((cx - 6, cy + 18, cx + 6, cy + 19.6), _a(P.TURQUOISE_LIGHT))
    return C.outline(L.image(), 1, P.VOID + (200,))


@picture("COMPASS_BG1.png", "50x50", "compass dial without its needle (loaded by the levels, not drawn)")
def compass_bg():
    return C.outline(_compass_face(50, 50).image(), 1, P.VOID + (200,))


@picture("INVERTARROWUP.png", "95.5x311.5", "the arrow that sweeps up the screen at a gravity flip (drawn at half alpha)")
def invert_up():
    w, h = 96, 312
    L = C.SSLayer(w, h)
    L.poly([(48, 2), (94, 80), (66, 80), (66, 310), (30, 310), (30, 80), (2, 80)], _a(P.GOLD))
    L.poly([(48, 10), (86, 75), (61, 75), (61, 305), (35, 305), (35, 75), (10, 75)], _a(P.TURQUOISE))
    L.poly([(48, 10), (86, 75), (61, 75), (61, 305), (48, 305)], _a(P.TURQUOISE_DARK))
    for y in range(100, 300, 34):
        L.poly([(48, y), (58, y + 12), (58, y + 20), (48, y + 8), (38, y + 20), (38, y + 12)], _a(P.GOLD_LIGHT))
    img = L.image()
    # The tail fades away so the sweep reads as motion.
    a = np.asarray(img).astype(np.float64)
    fade = np.clip(np.linspace(1.6, 0.0, h), 0, 1)[:, None]
    a[..., 3] *= fade
    return C.glow(C.from_array(a), 3, P.TURQUOISE_LIGHT + (0,), 0.7)


@picture("INVERTARROWDOWN.png", "95.5x311.5", "the arrow that sweeps down the screen at a gravity flip")
def invert_down():
    return ImageOps.flip(invert_up())


@picture("CURSORTEX.png", "14x14", "mouse pointer of menus and pause: a gold arrow, tip at the top left")
def cursor():
    L = C.SSLayer(14, 14)
    L.poly([(1, 1), (1, 12.5), (4.2, 9.6), (6.6, 13.4), (8.6, 12.4), (6.4, 8.8), (10.6, 8.6)], _a(P.GOLD))
    L.poly([(2.2, 3.4), (2.2, 9.8), (4.6, 7.6), (5.5, 7.8), (8.2, 7.6)], _a(P.GOLD_LIGHT))
    return C.outline(L.image(), 1, P.VOID + (255,))


alias("cursorTEX.png", "CURSORTEX.png", "14x14", "the same pointer under the spelling level selection loads")


@picture("TEX_INDICATOR_TEX.png", "10x10", "text caret of the name fields: a gold bar edged dark, on the white of the field",
         blended=False, clear="#ffffff")
def caret():
    img = C.new(10, 10, (255, 255, 255, 0))
    px = img.load()
    for y in range(1, 10):
        px[2, y] = P.INK + (255,)
        px[3, y] = P.GOLD_LIGHT + (255,)
        px[4, y] = P.GOLD + (255,)
        px[5, y] = P.INK + (255,)
    for x in range(2, 6):
        px[x, 0] = P.INK + (255,)
    return img


@picture("STAT_BAR_TEX.png", "15x50", "one pip of an attribute row: a turquoise faience tile in gold")
def stat_pip():
    L = C.SSLayer(15, 50)
    L.rect((0.5, 0.5, 14.5, 49.5), _a(P.GOLD_DARK), radius=2)
    L.rect((1.8, 1.8, 13.2, 48.2), _a(P.GOLD), radius=1.5)
    L.rect((3, 3, 12, 47), _a(P.TURQUOISE_DARK), radius=1)
    L.rect((4, 4, 10.5, 46), _a(P.TURQUOISE))
    L.rect((4.5, 5, 6.5, 44), _a(P.TURQUOISE_LIGHT))
    return L.image()


@picture("shimmeringexit.png", "137.8x130", "the credits' far doorway: a soft shimmer of light (drawn at alpha 0.2)")
def shimmer_exit():
    w, h = 138, 130
    img = radial(w, h, 69, 72, 69, 64, P.TURQUOISE_LIGHT, 255, 1.2)
    core = radial(w, h, 69, 78, 30, 52, P.WHITE, 255, 0.8)
    img.alpha_composite(core)
    rng = np.random.default_rng(91)
    a = C.to_array(img)
    xx = np.arange(w)
    rays = 0.75 + 0.25 * np.sin(xx * 0.45 + rng.uniform(0, 6)) * np.sin(xx * 0.13)
    a[..., 3] *= rays[None, :]
    return C.from_array(a)


@picture("shimmeringlight.png", "14.4x99", "a shaft of light beside the credits' doorway (drawn at alpha 0.6)")
def shimmer_light():
    w, h = 14, 99
    yy, xx = np.mgrid[0:h, 0:w]
    across = np.clip(1 - np.abs(xx + 0.5 - w / 2) / (w / 2), 0, 1) ** 1.3
    along = np.clip(np.sin(np.pi * (yy + 0.5) / h), 0, 1) ** 0.6
    a = across * along * 255
    col = np.array(P.FLAME, dtype=np.float64) * (1 - across[..., None] * 0.5) + \
        np.array(P.WHITE, dtype=np.float64) * across[..., None] * 0.5
    return C.from_array(np.dstack([col, a]))
