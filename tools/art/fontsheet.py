"""fontsheet.py -- the letter sheet the editor and level selection cut their text from.

Owns: "lucida_console_f_tex.png": 26 columns by 3 rows of 20 x 20 pixel cells (520 x 60). Row 0 holds
      a to z, row 1 holds 1 to 9 and 0 in columns 0 to 9, the blank in column 23 and _ in column 24,
      row 2 holds A to Z; every other cell is clear. The game draws one cell 10 units wide, so a cell is
      two pixels a unit and the letters keep a clear margin: a cell never bleeds into its neighbour.
Letters are cream with a dark edge, readable on the white name field and on dark stone alike.
"""
import string

from PIL import Image, ImageDraw

import canvas as C
import palette as P
import text as T
from registry import picture

CELL = 20
COLS, ROWS = 26, 3
SIZE = 14  # DejaVu Sans Mono Bold: caps, descenders and the edge fit inside a one-pixel clear margin
BASELINE = 14


def layout():
    """The character of each (row, column) cell; cells not named are clear."""
    cells = {}
    for i, ch in enumerate(string.ascii_lowercase):
        cells[(0, i)] = ch
    for i, ch in enumerate("1234567890"):
        cells[(1, i)] = ch
    cells[(1, 23)] = " "
    cells[(1, 24)] = "_"
    for i, ch in enumerate(string.ascii_uppercase):
        cells[(2, i)] = ch
    return cells


@picture("lucida_console_f_tex.png", "10x10",
         "letter sheet, drawn one 10x10 cell at a time: 26 x 3 cells of DejaVu Sans Mono, a-z / 1-9,0 blank _ / A-Z, cut by texture offset")
def font_sheet():
    img = C.new(COLS * CELL, ROWS * CELL)
    f = T.font(P.FONT_MONO, SIZE)
    asc, desc = f.getmetrics()
    for (row, col), ch in sorted(layout().items()):
        if ch == " ":
            continue
        cell = Image.new("RGBA", (CELL, CELL), (0, 0, 0, 0))
        d = ImageDraw.Draw(cell)
        # A common baseline for the whole sheet, so letters of one word line up.
        d.text((CELL / 2, BASELINE), ch, font=f, anchor="ms", fill=P.CREAM + (255,), stroke_width=2,
               stroke_fill=P.INK + (255,))
        img.alpha_composite(cell, dest=(col * CELL, row * CELL))
    return img
