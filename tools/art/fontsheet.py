"""fontsheet.py -- the letter sheet the editor and level selection cut their text from.

Owns: "lucida_console_f_tex.png": 26 columns by 3 rows of 20 x 20 pixel cells (520 x 60). Row 0 holds
      a to z, row 1 holds 1 to 9 and 0 in columns 0 to 9, the blank in column 23 and _ in column 24,
      row 2 holds A to Z; every other cell is clear.
The game draws a cell 10 units wide (names, messages) and 20 wide (the skill points) and samples the
sheet nearest, so letters are drawn for 10 pixels: each glyph is the 6x10 misc-fixed bitmap face of the
X11 core fonts (public domain, Debian's xfonts-base), one pixel of the face per 2x2 block of the sheet,
so every stroke survives the halving at 10 units whatever the phase of the sampling. Dark ink with a
one-pixel papyrus halo: the ink reads on the white name field, the halo lifts it off dark stone, and
drawn without blending the cells show the white of the name field, on which they were made.
"""
import gzip
import io
import string

import numpy as np
from PIL import Image, PcfFontFile

import canvas as C
import palette as P
from registry import picture

CELL = 20
PIXEL = 2  # sheet pixels a face pixel: a cell is drawn 10 units wide
COLS, ROWS = 26, 3
FACE = "/usr/share/fonts/X11/misc/6x10-ISO8859-1.pcf.gz"
INK_X = 2  # left column of the 6-wide face inside the 10-wide cell: the ink sits in the middle
GROUND = (255, 255, 255)


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


def _face_bitmaps():
    """Each character of the face as a 10x6 array of 0/1, from the PCF file itself."""
    with gzip.open(FACE, "rb") as f:
        pcf = PcfFontFile.PcfFontFile(io.BytesIO(f.read()))
    out = {}
    for code, glyph in enumerate(pcf.glyph):
        if not glyph:
            continue
        _dwidth, dst, _src, im = glyph
        x0, y0, x1, y1 = dst  # relative to the pen on the baseline, y down
        bits = np.zeros((10, 6), dtype=np.uint8)
        arr = (np.asarray(im.convert("L")) > 0).astype(np.uint8)
        for yy in range(arr.shape[0]):
            for xx in range(arr.shape[1]):
                ty, tx = 8 + y0 + yy, x0 + xx  # baseline at row 8 of the 10
                if arr[yy, xx] and 0 <= ty < 10 and 0 <= tx < 6:
                    bits[ty, tx] = 1
        out[chr(code)] = bits
    return out


def _cell(bits):
    """A 10x10 cell: ink where the face has a pixel, a halo one pixel round it, the rest clear."""
    ink = np.zeros((10, 10), dtype=bool)
    ink[:, INK_X:INK_X + 6] = bits.astype(bool)
    halo = np.zeros_like(ink)
    for dy in (-1, 0, 1):
        for dx in (-1, 0, 1):
            halo |= np.roll(np.roll(ink, dy, axis=0), dx, axis=1)
    halo &= ~ink
    rgba = np.zeros((10, 10, 4))
    rgba[...] = GROUND + (0,)
    rgba[halo] = P.PAPYRUS + (255,)
    rgba[ink] = P.INK + (255,)
    return rgba


@picture("lucida_console_f_tex.png", "10x10,20x20",
         "letter sheet, drawn one cell at a time: 26 x 3 cells of the 6x10 misc-fixed face, dark ink with a "
         "papyrus halo, a-z / 1-9,0 blank _ / A-Z, cut by texture offset",
         blended=False, clear="#ffffff")
def font_sheet():
    faces = _face_bitmaps()
    small = np.zeros((ROWS * 10, COLS * 10, 4))
    small[...] = GROUND + (0,)
    for (row, col), ch in sorted(layout().items()):
        if ch == " ":
            continue
        small[row * 10:(row + 1) * 10, col * 10:(col + 1) * 10] = _cell(faces[ch])
    img = C.from_array(small)
    return img.resize((COLS * CELL, ROWS * CELL), Image.NEAREST)
