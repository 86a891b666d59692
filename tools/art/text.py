"""text.py -- words on pictures: the display face in gold or cream, with outline, shadow and fitting.

Owns: font loading, measuring, fitting a text into a box, and the two looks of lettering the game uses
      ("gold": carved gilded capitals for titles and buttons; "plain": one colour with an outline for
      longer lines).
Read by: buttons, screens, credits and tutorial pictures.
"""
from functools import lru_cache

import numpy as np
from PIL import Image, ImageDraw, ImageFont

import palette as P

_scratch = ImageDraw.Draw(Image.new("L", (4, 4)))


@lru_cache(maxsize=None)
def font(path, size):
    return ImageFont.truetype(path, size)


def measure(text, path, size, stroke=0):
    """Width and height of the ink of a one-line text."""
    x0, y0, x1, y1 = _scratch.textbbox((0, 0), text, font=font(path, size), stroke_width=stroke, anchor="ls")
    return x1 - x0, y1 - y0


def fit_size(text, path, max_w, max_h, start=200, stroke=0):
    """The largest size at which the text's ink fits max_w by max_h (capital height counted fully)."""
    size = start
    while size > 6:
        w, _ = measure(text, path, size, stroke)
        f = font(path, size)
        asc, desc = f.getmetrics()
        cap = _scratch.textbbox((0, 0), "HQgy", font=f, anchor="ls", stroke_width=stroke)
        h = cap[3] - cap[1]
        if w <= max_w and h <= max_h:
            return size
        size -= 1
    return size


def _mask(size_wh, text, path, size, center, stroke=0, anchor="mm"):
    m = Image.new("L", size_wh, 0)
    ImageDraw.Draw(m).text(center, text, font=font(path, size), fill=255, anchor=anchor, stroke_width=stroke,
                           stroke_fill=255)
    return m


def _gradient(w, h, top, bottom, y0, y1):
    """A vertical colour gradient from top (at row y0) to bottom (at row y1), clamped outside."""
    ys = np.clip((np.arange(h) - y0) / max(1.0, (y1 - y0)), 0.0, 1.0)
    t = np.array(top, dtype=np.float64)
    b = np.array(bottom, dtype=np.float64)
    col = t[None, :] + (b - t)[None, :] * ys[:, None]
    return np.repeat(col[:, None, :], w, axis=1)


def gold_text(canvas, text, center, size, path=P.FONT_DISPLAY, stroke=2, shadow=2,
              top=P.GOLD_LIGHT, bottom=P.GOLD_DARK, edge=P.SHADOW, anchor="mm"):
    """Gilded capitals: gradient fill, dark edge, a drop shadow below right. Drawn onto canvas."""
    w, h = canvas.size
    f = font(path, size)
    bbox = _scratch.textbbox(center, text, font=f, anchor=anchor)
    fill_mask = _mask((w, h), text, path, size, center, 0, anchor)
    edge_mask = _mask((w, h), text, path, size, center, stroke, anchor) if stroke > 0 else fill_mask
    if shadow > 0:
        sh = Image.new("RGBA", (w, h), P.VOID + (0,))
        sh.putalpha(edge_mask.point(lambda v: v * 200 // 255))
        shifted = Image.new("RGBA", (w, h), (0, 0, 0, 0))
        shifted.paste(sh, (shadow, shadow))
        canvas.alpha_composite(shifted)
    e = Image.new("RGBA", (w, h), edge + (0,))
    e.putalpha(edge_mask)
    canvas.alpha_composite(e)
    grad = _gradient(w, h, top, bottom, bbox[1], bbox[3])
    g = Image.fromarray(np.dstack([grad, np.asarray(fill_mask)]).astype(np.uint8), "RGBA")
    canvas.alpha_composite(g)
    return canvas


def plain_text(canvas, text, center, size, color, path=P.FONT_BODY, stroke=0, stroke_color=P.VOID,
               anchor="mm"):
    """One-colour text with an optional outline."""
    d = ImageDraw.Draw(canvas)
    d.text(center, text, font=font(path, size), fill=color + (255,) if len(color) == 3 else color,
           anchor=anchor, stroke_width=stroke,
           stroke_fill=stroke_color + (255,) if len(stroke_color) == 3 else stroke_color)
    return canvas


def lines_block(canvas, lines, box, path, size, color, spacing=1.25, stroke=0, stroke_color=P.VOID,
                align="center"):
    """Several lines centred as a block in box (x0, y0, x1, y1)."""
    x0, y0, x1, y1 = box
    f = font(path, size)
    asc, desc = f.getmetrics()
    step = int(round(size * spacing))
    total = step * (len(lines) - 1) + asc
    y = (y0 + y1) / 2 - total / 2 + asc
    for line in lines:
        if align == "center":
            plain_text(canvas, line, ((x0 + x1) / 2, y), size, color, path, stroke, stroke_color, anchor="ms")
        else:
            plain_text(canvas, line, (x0, y), size, color, path, stroke, stroke_color, anchor="ls")
        y += step
    return canvas
