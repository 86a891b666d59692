"""sprites.py -- the explorer and what is attached to it: right and left pictures, the ghost, the torch hand.

Owns: "CHARACTER.png", "character_left.png", "ghost.png", "torchlight.png".
The explorer fills the 50x50 picture from hat to boots (its box is 50 high and narrow); its hand sits
8 units below the centre, where the torch hand picture is drawn over it, turned to the aim.
"""
import numpy as np
from PIL import Image, ImageFilter, ImageOps

import canvas as C
import palette as P
from registry import picture


def _a(c, a=255):
    return c + (a,)


def _explorer(k=1):
    """The explorer facing right, at 50x50 (or k times that, drawn at that detail), before the outline."""
    L = C.SSLayer(50, 50, k=k)
    # Back leg and boot (further from the viewer, a shade darker).
    L.poly([(20, 33), (25, 33), (24.5, 44), (20.5, 44)], _a(P.mix(P.CLOTH_BROWN, P.VOID, 0.25)))
    L.poly([(19.5, 43.5), (25, 43.5), (25.5, 49.8), (17.5, 49.8), (18, 46)], _a(P.LEATHER_DARK))
    # Front leg, a half step forward, and boot with the toe to the right.
    L.poly([(25, 33), (30.5, 33), (31.5, 44), (26.5, 44)], _a(P.CLOTH_BROWN))
    L.poly([(26, 43.5), (31.5, 43.5), (34.5, 46.5), (34.5, 49.8), (26, 49.8)], _a(P.LEATHER))
    L.line([(26.5, 46), (33.5, 46)], _a(P.LEATHER_LIGHT), 0.8)
    # Back arm, behind the body.
    L.poly([(18.5, 21), (21.5, 21), (20.5, 31), (17.5, 30.5)], _a(P.KHAKI_DARK))
    # Shirt and satchel strap.
    L.poly([(18.5, 20), (31, 20), (32, 33.5), (18, 33.5)], _a(P.KHAKI))
    L.poly([(27, 20), (31, 20), (32, 33.5), (29.5, 33.5)], _a(P.mix(P.KHAKI, P.SANDSTONE_HIGH, 0.35)))
    L.line([(29.5, 20.5), (20, 32)], _a(P.LEATHER), 1.6)
    L.poly([(16, 28.5), (21, 28.5), (21, 34), (16, 34)], _a(P.LEATHER))
    L.line([(16.3, 29.5), (20.7, 29.5)], _a(P.LEATHER_LIGHT), 0.8)
    # Belt with a gold buckle.
    L.poly([(18, 32.5), (32, 32.5), (32, 34.5), (18, 34.5)], _a(P.LEATHER_DARK))
    L.rect((26, 32.3, 28.5, 34.8), _a(P.GOLD))
    # Neck, red scarf, head.
    L.poly([(23, 17.5), (27.5, 17.5), (27.5, 21), (23, 21)], _a(P.SKIN_DARK))
    L.poly([(21, 19.5), (30, 19.5), (29.5, 22.5), (21.5, 22.5)], _a(P.CARNELIAN))
    L.poly([(21.5, 20.5), (19.5, 25), (21.5, 25.5), (23, 21.5)], _a(P.CARNELIAN_DARK))
    L.ellipse((21, 8.5, 31.5, 19.5), _a(P.SKIN))
    L.poly([(30.5, 12.5), (33, 15), (30.5, 16)], _a(P.SKIN))
    L.ellipse((21, 12, 24.5, 18), _a(P.SKIN_DARK))
    L.rect((28, 12.5, 29.6, 14.6), _a(P.VOID))
    L.line([(27.5, 11.6), (30, 11.4)], _a(P.CLOTH_BROWN), 0.8)
    L.line([(29, 17.2), (31, 16.8)], _a(P.SKIN_DARK), 0.8)
    # Pith helmet: dome, band, brim.
    L.ellipse((18.5, 1.2, 33.5, 14), _a(P.mix(P.KHAKI, P.SANDSTONE_HIGH, 0.45)))
    L.poly([(18.5, 7.6), (33.5, 7.6), (33.5, 9.8), (18.5, 9.8)], _a(P.CLOTH_BROWN))
    L.poly([(14.5, 9.5), (37, 9.5), (35.5, 11.6), (16, 11.6)], _a(P.KHAKI_DARK))
    L.ellipse((22, 2.5, 27, 5), _a(P.CREAM, 150))
    return L.image()


def _front_arm(k=1):
    """The arm that holds the torch, drawn over the shirt, ending at the hand point (25, 33)."""
    L = C.SSLayer(50, 50, k=k)
    L.line([(24.5, 21.5), (26, 27), (25.5, 32)], _a(P.mix(P.KHAKI, P.SANDSTONE_HIGH, 0.2)), 3.4)
    L.line([(24.5, 21.5), (26, 27)], _a(P.KHAKI_DARK), 0.7)
    return L.image()


@picture("CHARACTER.png", "50x50", "the explorer facing right: pith helmet, khaki shirt, red scarf")
def character_right(k=1):
    img = _explorer(k)
    img.alpha_composite(_front_arm(k))
    return C.outline(img, k, P.VOID + (235,))


@picture("character_left.png", "50x50", "the explorer facing left, the mirror of CHARACTER.png")
def character_left():
    return ImageOps.mirror(character_right())


@picture("ghost.png", "50x50", "the lost explorer: a pale turquoise shade of the character, fading at the feet")
def ghost(k=1):
    base = character_right(k)
    a = np.asarray(base.split()[3]).astype(np.float64)
    lum = np.asarray(base.convert("L")).astype(np.float64) / 255.0
    h, w = a.shape
    yy = np.mgrid[0:h, 0:w][0] / float(k)
    # The body thins out into wisps below the belt.
    wisp = np.clip((47 - yy) / 14.0, 0, 1)
    wave = 0.5 + 0.5 * np.sin(np.arange(w) / float(k) * 0.9)[None, :]
    fade = np.where(yy > 33, wisp * (0.6 + 0.4 * wave), 1.0)
    pale = np.array(P.TURQUOISE_LIGHT, dtype=np.float64)
    deep = np.array(P.TURQUOISE_DARK, dtype=np.float64)
    rgb = deep[None, None, :] + (pale - deep)[None, None, :] * np.clip(0.35 + lum, 0, 1)[..., None]
    alpha = a * 0.72 * fade
    img = C.from_array(np.dstack([rgb, alpha]))
    # Hollow eyes.
    L = C.SSLayer(50, 50, k=k)
    L.ellipse((27.2, 11.8, 30.2, 15.4), _a(P.VOID, 230))
    L.ellipse((23.2, 12.2, 25.6, 15.2), _a(P.VOID, 160))
    img.alpha_composite(L.image())
    return C.glow(img, 2.0 * k, P.TURQUOISE + (0,), 0.8)


@picture("torchlight.png", "15x15", "the hand with the electric torch, pointing along +x, turned to the aim about its centre")
def torch_hand():
    L = C.SSLayer(15, 15)
    # Torch body: dark metal tube with brass bands, wider head and a bright lens at the right end.
    L.rect((2, 5.6, 10.5, 9.4), _a(P.mix(P.STONE_DARK, P.VOID, 0.3)), radius=0.8)
    L.rect((2, 5.6, 10.5, 6.5), _a(P.STONE_MID))
    L.rect((3, 5.6, 3.9, 9.4), _a(P.GOLD_DARK))
    L.poly([(10, 5.6), (12.6, 4.4), (12.6, 10.6), (10, 9.4)], _a(P.GOLD_DARK))
    L.poly([(10, 5.6), (12.6, 4.4), (12.6, 5.6)], _a(P.GOLD))
    L.rect((12.4, 4.4, 14.2, 10.6), _a(P.FLAME))
    L.rect((13.2, 5.4, 14.6, 9.6), _a(P.WHITE))
    # The gloved hand around the grip.
    L.ellipse((4.6, 4.8, 9.4, 10.2), _a(P.LEATHER))
    L.line([(5.4, 6.4), (8.6, 6.4)], _a(P.LEATHER_LIGHT), 0.6)
    L.line([(5.4, 8.0), (8.6, 8.0)], _a(P.LEATHER_DARK), 0.6)
    img = L.image()
    return C.outline(img, 1, P.VOID + (200,))
