"""palette.py -- the one palette every picture of the game is painted from.

Owns: the named colours (tomb stone, gold, lapis, turquoise, torch light, papyrus...) and the font paths.
Read by: every drawing module, so a colour change here changes the whole game at once.
"""

FONT_DIR_URW = "/usr/share/fonts/opentype/urw-base35/"
FONT_DIR_DEJAVU = "/usr/share/fonts/truetype/dejavu/"
FONT_DIR_NOTO = "/usr/share/fonts/truetype/noto/"

# Display face for every word the player reads on a picture, body face for longer lines.
FONT_DISPLAY = FONT_DIR_URW + "P052-Bold.otf"
FONT_BODY = FONT_DIR_URW + "P052-Roman.otf"
FONT_BODY_BOLD = FONT_DIR_URW + "P052-Bold.otf"
FONT_MONO = FONT_DIR_DEJAVU + "DejaVuSansMono-Bold.ttf"
FONT_HIEROGLYPHS = FONT_DIR_NOTO + "NotoSansEgyptianHieroglyphs-Regular.ttf"

VOID = (7, 5, 10)
SHADOW = (22, 15, 10)
STONE_DARK = (48, 34, 22)
STONE_MID = (92, 68, 42)
SANDSTONE = (160, 124, 76)
SANDSTONE_LIGHT = (204, 170, 116)
SANDSTONE_HIGH = (232, 208, 158)
LIMESTONE = (196, 186, 160)
MORTAR = (30, 21, 14)

GOLD = (242, 193, 78)
GOLD_LIGHT = (255, 228, 140)
GOLD_DARK = (176, 128, 40)
GOLD_DEEP = (110, 74, 22)

LAPIS = (34, 66, 146)
LAPIS_DARK = (16, 32, 84)
LAPIS_DEEP = (10, 18, 48)
LAPIS_LIGHT = (72, 112, 204)

TURQUOISE = (64, 196, 178)
TURQUOISE_LIGHT = (150, 236, 220)
TURQUOISE_DARK = (26, 120, 112)

TORCH = (255, 154, 60)
FLAME = (255, 214, 122)
EMBER = (200, 80, 24)

CARNELIAN = (190, 50, 40)
CARNELIAN_LIGHT = (236, 104, 84)
CARNELIAN_DARK = (104, 24, 20)

PAPYRUS = (232, 214, 164)
PAPYRUS_DARK = (178, 150, 96)
INK = (40, 24, 14)

SKIN = (198, 138, 90)
SKIN_DARK = (140, 88, 52)
KHAKI = (182, 156, 100)
KHAKI_DARK = (122, 100, 58)
CLOTH_BROWN = (92, 60, 34)
LEATHER = (110, 62, 30)
LEATHER_DARK = (62, 34, 16)
LEATHER_LIGHT = (150, 92, 48)

CREAM = (246, 230, 190)
WHITE = (255, 255, 255)


def rgba(color, alpha=255):
    """A palette colour as an RGBA tuple."""
    return (color[0], color[1], color[2], alpha)


def mix(a, b, t):
    """Linear blend of two colours, t = 0 gives a, t = 1 gives b."""
    return tuple(int(round(a[i] + (b[i] - a[i]) * t)) for i in range(3))
