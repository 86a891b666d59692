"""levelselect.py -- the level selection screen's own pictures: backdrop, attribute panel, divider.

Owns: "Level_selection_BG.png", "level_selectbox.png", "LevelSelLine.png".
The backdrop (800x560, centred 20 below the view's centre) gives the six level buttons a recessed slab,
frames the preview niche on the right and labels the corner where a user level is named and loaded.
"""
import numpy as np
from PIL import Image, ImageDraw

import canvas as C
import materials as M
import palette as P
import text as T
from registry import picture


def _pic(x, y):
    """View units (centre origin, y up) to backdrop pixels (top-left origin)."""
    return x + 400, 260 - y


@picture("Level_selection_BG.png", "800x560", "level selection backdrop: tomb wall, a slab for the level buttons, a niche for the preview")
def level_select_backdrop():
    w, h = 800, 560
    img = M.stone_blocks(w, h, 111, course_h=48, block_w=(90, 180), base=P.STONE_MID, cracks=40, contrast=0.85)
    img = M.darken(img, 0.62)
    img = M.vignette(img, 0.5, 2.0)
    # Heading over the level buttons.
    T.gold_text(img, "CHOOSE A CHAMBER", (250, 44), 30, stroke=2, shadow=2)
    M.stripe_band(img, (70, 66, 430, 70), [P.GOLD, P.LAPIS], [2, 2])
    # Recessed slab behind the two rows of level buttons.
    slab = M.stone_panel(428, 180, 112, base=P.STONE_DARK, radius=10)
    img.alpha_composite(slab, dest=(36, 78))
    # The preview niche: a gold frame a few pixels outside the preview.
    x0, y0 = _pic(86, 133)
    x1, y1 = _pic(394, -93)
    d = ImageDraw.Draw(img)
    d.rectangle((x0 - 8, y0 - 8, x1 + 4, y1 + 8), fill=P.VOID + (255,))
    M.gold_frame(img, (int(x0 - 8), int(y0 - 8), int(x1 + 5), int(y1 + 9)), width=3, radius=4)
    # The user level corner: a label over the editor button, and one before the name field.
    T.plain_text(img, "YOUR OWN LEVELS", _pic(250, -114), 15, P.GOLD_LIGHT, P.FONT_BODY_BOLD, stroke=1,
                 stroke_color=P.VOID)
    T.plain_text(img, "NAME", _pic(118, -215), 14, P.GOLD_LIGHT, P.FONT_BODY_BOLD, stroke=1,
                 stroke_color=P.VOID, anchor="rm")
    return img


@picture("level_selectbox.png", "456x264", "level selection: the framed slab behind the character attribute panel")
def attribute_box():
    # The panel's title is drawn before this box and sits over its top 52 rows, so the slab starts
    # below it and only a gilded rule crosses the top.
    w, h = 456, 264
    top = 52
    img = C.new(w, h)
    slab = M.stone_panel(w, h - top, 113, base=P.mix(P.STONE_DARK, P.LAPIS_DARK, 0.35), radius=12, alpha=235)
    img.alpha_composite(slab, dest=(0, top))
    M.hieroglyph_column(img, (8, top + 12, 26, h - 14), 114, 16)
    M.stripe_band(img, (6, 4, w - 6, 8), [P.GOLD_LIGHT, P.GOLD_DARK], [2, 2])
    return img


@picture("LevelSelLine.png", "328.9x14.3", "level selection: a gilded divider between the two attribute rows")
def divider():
    w, h = 329, 14
    L = C.SSLayer(w, h)
    L.rect((10, 5.5, w - 10, 8.5), P.GOLD + (255,))
    L.rect((10, 5.5, w - 10, 6.5), P.GOLD_LIGHT + (255,))
    for cx in (7, w - 7):
        L.poly([(cx - 6, 7), (cx, 1), (cx + 6, 7), (cx, 13)], P.TURQUOISE + (255,))
        L.poly([(cx - 3, 7), (cx, 4), (cx + 3, 7), (cx, 10)], P.TURQUOISE_LIGHT + (255,))
    L.ellipse((w / 2 - 5, 2, w / 2 + 5, 12), P.CARNELIAN + (255,))
    return C.outline(L.image(), 1, P.VOID + (220,))
