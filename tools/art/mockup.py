#!/usr/bin/python3
"""mockup.py -- pictures of assets/ as the game shows them, at real size, for looking at.

Run from the repository root:  /usr/bin/python3 tools/art/mockup.py [OUT_DIR]   (default build/mockups)
Owns: the mock-ups, which are not assets and are not committed. Each picture is scaled with nearest
      sampling to the mesh it is drawn on (the engine's textures sample nearest) and put on the ground it
      is drawn over, blended or not as the game draws it:
      - hearts.png: the heart in the HUD (25x25) and on the attribute panel (43.5x84);
      - name-field.png: a typed name of 10-unit glyphs with the caret, on the editor's white name field,
        and a message in the same glyphs on the tomb wall, both blended and unblended, and twice enlarged;
      - solids.png: platform, long platform, wall and drop wall drawn unblended on the level backdrop;
      - win-view.png, lose-view.png: the end screens as an 800x600 view shows them at scale 1.1.
"""
import os
import sys

from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
ASSETS = os.path.join(ROOT, "assets")
COLS, ROWS = 26, 3


def load(name):
    return Image.open(os.path.join(ASSETS, name)).convert("RGBA")


def put(ground, pic, box_w, box_h, x, y, blended=True):
    """Draw a picture on its mesh of box_w x box_h at (x, y), nearest sampled, as the game does."""
    scaled = pic.resize((max(1, int(round(box_w))), max(1, int(round(box_h)))), Image.NEAREST)
    if blended:
        ground.alpha_composite(scaled, dest=(int(x), int(y)))
    else:
        opaque = scaled.copy()
        opaque.putalpha(255)
        ground.paste(opaque, (int(x), int(y)))


def glyph(sheet, ch):
    """The cell of one character, by the sheet's layout: a-z / 1-9,0 blank _ / A-Z."""
    cw, chh = sheet.size[0] // COLS, sheet.size[1] // ROWS
    if ch.islower():
        r, c = 0, ord(ch) - ord("a")
    elif ch.isupper():
        r, c = 2, ord(ch) - ord("A")
    elif ch.isdigit():
        r, c = 1, (int(ch) - 1) % 10
    elif ch == "_":
        r, c = 1, 24
    else:
        r, c = 1, 23
    return sheet.crop((c * cw, r * chh, (c + 1) * cw, (r + 1) * chh))


def write(ground, sheet, text, x, y, size, blended):
    for i, ch in enumerate(text):
        put(ground, glyph(sheet, ch), size, size, x + i * size, y, blended)
    return x + len(text) * size


def hearts(out):
    heart = load("ATTRI_HP_TEX.png")
    img = Image.new("RGBA", (300, 130), (40, 34, 30, 255))
    for i in range(3):
        put(img, heart, 25, 25, 20 + i * 30, 20)
    put(img, heart, 43.5, 84, 150, 20)
    img.save(os.path.join(out, "hearts.png"))


def name_field(out):
    sheet = load("lucida_console_f_tex.png")
    caret = load("TEX_INDICATOR_TEX.png")
    wall = load("BACKGROUND.png").crop((1000, 600, 1400, 760))
    img = Image.new("RGBA", (400, 160), (0, 0, 0, 255))
    img.paste(wall, (0, 0))
    for row, blended in ((10, True), (40, False)):
        field = Image.new("RGBA", (200, 20), (255, 255, 255, 255))
        img.paste(field, (10, row))
        end = write(img, sheet, "Tomb_of_Kha2", 15, row + 5, 10, blended)
        put(img, caret, 10, 10, end, row + 5, blended=False)
        write(img, sheet, "Level saved", 230, row + 5, 10, blended)
    write(img, sheet, "The Quick Brown Fox 0123", 10, 80, 10, True)
    write(img, sheet, "jumps over lazy dogs 456789", 10, 100, 10, False)
    write(img, sheet, "SP 3", 10, 125, 20, True)
    img.save(os.path.join(out, "name-field.png"))
    img.resize((800, 320), Image.NEAREST).save(os.path.join(out, "name-field-x2.png"))


def solids(out):
    img = load("BACKGROUND.png").crop((1200, 400, 1600, 700))
    put(img, load("HORIPLATFORMTEXT.png"), 100, 20, 20, 240, blended=False)
    put(img, load("HORIPLATFORMTEXT.png"), 150, 20, 150, 200, blended=False)
    put(img, load("VERTPLATFORMTEXT.png"), 20, 100, 320, 140, blended=False)
    put(img, load("DROPPING_PLATFORM.png"), 20, 100, 360, 60, blended=False)
    img.save(os.path.join(out, "solids.png"))


def end_views(out):
    for name, short in (("WINSCREEN.png", "win"), ("LOSESCREEN.png", "lose")):
        big = load(name).resize((871, 660), Image.NEAREST)
        view = Image.new("RGBA", (800, 600), (0, 0, 0, 255))
        view.alpha_composite(big.crop((36, 30, 836, 630)))
        view.save(os.path.join(out, short + "-view.png"))


def main(argv):
    out = os.path.abspath(argv[1]) if len(argv) > 1 else os.path.join(ROOT, "build", "mockups")
    os.makedirs(out, exist_ok=True)
    hearts(out)
    name_field(out)
    solids(out)
    end_views(out)
    print("mockup.py: wrote mock-ups into " + out)


if __name__ == "__main__":
    main(sys.argv)
