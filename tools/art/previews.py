"""previews.py -- first versions of the six level previews of the level selection screen.

Owns: "peektutorial.png", "level2peek.png", "Level3peek.png", "level4peek.png", "level5peek.png",
      "level6peek.png" (308 x 225.4 on screen). Each is a small torchlit scene built from the game's own
      pictures, showing what the level is about; the levels work replaces them with real renders.
"""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter, ImageOps

import canvas as C
import hud as H
import items as I
import materials as M
import palette as P
import sprites as S
import text as T
import world as W
from registry import picture

PW, PH = 308, 225


def _scene(seed):
    wall = M.stone_blocks(PW, PH, seed, course_h=30, block_w=(50, 110), base=P.STONE_MID, cracks=12, contrast=0.8)
    return M.darken(wall, 0.55)


def _platform(img, x, y, length=100):
    p = W.horizontal_platform()
    if length != 100:
        p = p.resize((length, 20), Image.NEAREST)
    img.alpha_composite(p, dest=(int(x), int(y)))


def _wall(img, x, y):
    img.alpha_composite(W.vertical_wall(), dest=(int(x), int(y)))


def _spikes(img, x, y, count, up=True):
    L = C.SSLayer(PW, PH)
    for k in range(count):
        sx = x + k * 11
        if up:
            L.poly([(sx, y + 23), (sx + 5.5, y), (sx + 11, y + 23)], (230, 230, 250, 255))
        else:
            L.poly([(sx, y), (sx + 5.5, y + 23), (sx + 11, y)], (230, 230, 250, 255))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))


def _light(img, cx, cy, angle_deg, reach=260):
    """Darken the scene except a cone from (cx, cy), as the game's mask does."""
    yy, xx = np.mgrid[0:PH, 0:PW].astype(np.float64)
    dx, dy = xx - cx, cy - yy
    r = np.sqrt(dx * dx + dy * dy)
    ang = np.degrees(np.arctan2(dy, dx)) - angle_deg
    ang = np.abs((ang + 180) % 360 - 180)
    cone = (1 - H._smoothstep(18, 34, ang)) * (1 - H._smoothstep(reach * 0.5, reach, r))
    glow = 1 - H._smoothstep(25, 60, r)
    light = np.clip(np.maximum(cone, glow), 0, 1) * 0.92 + 0.08
    a = C.to_array(img)
    a[..., :3] = a[..., :3] * light[..., None] + np.array(P.TORCH)[None, None, :] * 0.06 * light[..., None]
    return C.from_array(a)


def _explorer(img, x, y, flip=False, left=False):
    ch = S.character_left() if left else S.character_right()
    hand = S.torch_hand()
    if flip:
        ch = ImageOps.flip(ch)
        hand = ImageOps.flip(hand)
    img.alpha_composite(ch, dest=(int(x), int(y)))
    img.alpha_composite(hand, dest=(int(x + 18), int(y + (10 if flip else 26))))


def _caption(img, number, name):
    d = ImageDraw.Draw(img)
    d.rectangle((0, PH - 34, PW, PH), fill=P.VOID + (215,))
    M.stripe_band(img, (0, PH - 36, PW, PH - 34), [P.GOLD], [2])
    T.gold_text(img, "LEVEL %d" % number, (56, PH - 17), 18, stroke=1, shadow=1)
    T.plain_text(img, name, (112, PH - 17), 16, P.CREAM, P.FONT_BODY_BOLD, stroke=1, anchor="lm")
    M.gold_frame(img, (0, 0, PW, PH), width=2)
    return img


@picture("peektutorial.png", "308x225.4", "preview of level 1, the tutorial: first steps with a tutorial box")
def peek1():
    img = _scene(141)
    _platform(img, 10, 150, 150)
    _platform(img, 180, 120)
    _explorer(img, 40, 100)
    img.alpha_composite(I.battery_pickup(), dest=(200, 76))
    tut = __import__("screens").tutorial_walk().resize((130, 80), Image.LANCZOS)
    img.alpha_composite(tut, dest=(160, 12))
    img = _light(img, 65, 130, 20)
    return _caption(img, 1, "The Antechamber")


@picture("level2peek.png", "308x225.4", "preview of level 2: spikes between the ledges")
def peek2():
    img = _scene(142)
    _platform(img, 4, 160)
    _spikes(img, 104, 166, 8)
    _platform(img, 192, 160)
    _platform(img, 120, 90)
    _explorer(img, 30, 110)
    img.alpha_composite(I.exit_portal(), dest=(240, 105))
    img = _light(img, 55, 140, 5, 300)
    return _caption(img, 2, "Hall of Thorns")


@picture("Level3peek.png", "308x225.4", "preview of level 3: gravity turned over, walking the ceiling")
def peek3():
    img = _scene(143)
    _platform(img, 20, 12, 150)
    _platform(img, 150, 170, 150)
    _explorer(img, 60, 32, flip=True)
    arrow = I.invert_up().resize((30, 96), Image.LANCZOS)
    img.alpha_composite(arrow, dest=(220, 50))
    _spikes(img, 180, 147, 6)
    img = _light(img, 85, 50, -20, 300)
    return _caption(img, 3, "The Turning Hall")


@picture("level4peek.png", "308x225.4", "preview of level 4: moving platforms over the dark")
def peek4():
    img = _scene(144)
    _platform(img, 10, 150)
    _platform(img, 150, 115)
    _platform(img, 210, 60, 90)
    d = ImageDraw.Draw(img)
    for x in range(132, 262, 12):
        d.line((x, 142, x + 6, 142), fill=P.GOLD_LIGHT + (200,), width=2)
    d.polygon([(262, 137), (270, 142), (262, 147)], fill=P.GOLD_LIGHT + (200,))
    _explorer(img, 40, 100)
    _wall(img, 285, 20)
    img = _light(img, 65, 130, 12, 300)
    return _caption(img, 4, "The Moving Stones")


@picture("level5peek.png", "308x225.4", "preview of level 5: a long dark gallery, batteries to find")
def peek5():
    img = _scene(145)
    _platform(img, 0, 160, 120)
    _platform(img, 140, 128)
    _platform(img, 220, 80)
    _explorer(img, 30, 110)
    img.alpha_composite(I.battery_pickup(), dest=(170, 86))
    img.alpha_composite(I.battery_pickup(), dest=(246, 38))
    img.alpha_composite(I.power_eye(), dest=(110, 60))
    img = _light(img, 55, 140, 25, 240)
    return _caption(img, 5, "The Dark Gallery")


@picture("level6peek.png", "308x225.4", "preview of level 6: the boulder run")
def peek6():
    img = _scene(146)
    _platform(img, 0, 170, 160)
    _platform(img, 160, 170, 150)
    b = W.boulder().resize((200, 118), Image.LANCZOS)
    img.alpha_composite(b, dest=(-40, 54))
    _explorer(img, 196, 120)
    img.alpha_composite(I.exit_portal(), dest=(250, 118))
    img = _light(img, 220, 150, 170, 300)
    return _caption(img, 6, "The Boulder Run")
