"""contact.py -- the contact sheet: every picture of assets/ as a thumbnail with its file name.

Owns: "docs/art/contact-sheet.png". Thumbnails sit on a checkerboard so transparency shows; small
      pictures are enlarged by whole pixels, big ones shrunk smoothly. A picture that the game draws with
      blending off is shown so too, alpha ignored, so its clear ground shows as it does in the game.
"""
from PIL import Image, ImageDraw

import canvas as C
import palette as P
import text as T

CELL_W, CELL_H = 200, 168
THUMB_W, THUMB_H = 188, 132
COLS = 8


def _checker(w, h, s=8):
    img = Image.new("RGBA", (w, h), (58, 58, 64, 255))
    d = ImageDraw.Draw(img)
    for y in range(0, h, s):
        for x in range(0, w, s):
            if (x // s + y // s) % 2:
                d.rectangle((x, y, x + s - 1, y + s - 1), fill=(84, 84, 92, 255))
    return img


def _thumb(img):
    w, h = img.size
    k = min(THUMB_W / w, THUMB_H / h)
    if k >= 1:
        k = max(1, min(4, int(k)))
        return img.resize((w * k, h * k), Image.NEAREST)
    return img.resize((max(1, int(w * k)), max(1, int(h * k))), Image.LANCZOS)


def contact_sheet(named_pictures):
    """named_pictures: list of (file name, PIL picture, clear ground of the manifest), drawn in that order."""
    rows = (len(named_pictures) + COLS - 1) // COLS
    sheet = Image.new("RGBA", (COLS * CELL_W, rows * CELL_H + 40), (24, 20, 18, 255))
    T.plain_text(sheet, "Quillon pictures: %d files in assets/" % len(named_pictures), (COLS * CELL_W / 2, 20),
                 18, P.GOLD_LIGHT, P.FONT_BODY_BOLD)
    for i, (name, img, clear) in enumerate(named_pictures):
        x0 = (i % COLS) * CELL_W
        y0 = 40 + (i // COLS) * CELL_H
        th = _thumb(img.convert("RGBA"))
        if clear != "-":
            th.putalpha(255)
        bg = _checker(th.size[0], th.size[1])
        bg.alpha_composite(th)
        sheet.alpha_composite(bg, dest=(x0 + (CELL_W - th.size[0]) // 2, y0 + 4 + (THUMB_H - th.size[1]) // 2))
        label = name if len(name) <= 30 else name[:28] + ".."
        T.plain_text(sheet, label, (x0 + CELL_W / 2, y0 + THUMB_H + 14), 12, P.CREAM,
                     "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")
        T.plain_text(sheet, "%dx%d%s" % (img.size + (", unblended" if clear != "-" else "",)), (x0 + CELL_W / 2, y0 + THUMB_H + 28), 10, P.PAPYRUS_DARK,
                     "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")
    return sheet
