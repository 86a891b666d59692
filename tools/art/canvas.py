"""canvas.py -- the drawing bench: blank pictures, supersampled shapes, noise, outlines, saving.

Owns: how a picture is made at its drawn pixel size with clean anti-aliased edges, and how it is written
      (RGBA, or RGB when opaque and drawn unblended; no metadata, fully transparent pixels given one fixed
      colour) so a rebuild is byte-identical.
Read by: every drawing module and build.py.
"""
import struct
import zlib

import numpy as np
from PIL import Image, ImageDraw, ImageFilter

SS = 4  # supersampling factor of shapes drawn with ss_layer


def new(w, h, color=(0, 0, 0, 0)):
    return Image.new("RGBA", (w, h), color)


def from_array(arr):
    """A float or uint8 array of shape (h, w, 4) with values 0..255 as an RGBA picture."""
    a = np.clip(np.rint(arr), 0, 255).astype(np.uint8)
    return Image.fromarray(a, "RGBA")


def to_array(img):
    return np.asarray(img.convert("RGBA")).astype(np.float64)


class SSLayer:
    """A supersampled RGBA layer: draw in picture pixels (floats allowed), get back a clean downsample.
    With k > 1 the same drawing comes out k times larger, every coordinate and width scaled: a small
    picture drawn again with the detail of a big one, not magnified."""

    def __init__(self, w, h, ss=SS, k=1):
        self.w, self.h, self.ss, self.k = w * k, h * k, ss, k
        self.s = ss * k
        self.img = Image.new("RGBA", (int(round(w * self.s)), int(round(h * self.s))), (0, 0, 0, 0))
        self.draw = ImageDraw.Draw(self.img)

    def _p(self, pts):
        s = self.s
        return [(x * s, y * s) for (x, y) in pts]

    def poly(self, pts, fill, outline=None, width=0):
        self.draw.polygon(self._p(pts), fill=fill, outline=outline,
                          width=int(round(width * self.s)) if outline else 0)

    def ellipse(self, box, fill, outline=None, width=0):
        x0, y0, x1, y1 = box
        s = self.s
        self.draw.ellipse((x0 * s, y0 * s, x1 * s - 1, y1 * s - 1), fill=fill, outline=outline,
                          width=int(round(width * s)))

    def rect(self, box, fill, radius=0, outline=None, width=0):
        x0, y0, x1, y1 = box
        s = self.s
        self.draw.rounded_rectangle((x0 * s, y0 * s, x1 * s - 1, y1 * s - 1), radius=radius * s, fill=fill,
                                    outline=outline, width=int(round(width * s)))

    def line(self, pts, fill, width=1.0):
        self.draw.line(self._p(pts), fill=fill, width=max(1, int(round(width * self.s))), joint="curve")

    def arc(self, box, start, end, fill, width=1.0):
        x0, y0, x1, y1 = box
        s = self.s
        self.draw.arc((x0 * s, y0 * s, x1 * s - 1, y1 * s - 1), start, end, fill=fill,
                      width=max(1, int(round(width * s))))

    def image(self):
        return self.img.resize((int(round(self.w)), int(round(self.h))), Image.BOX)


def over(base, top, xy=(0, 0)):
    """Alpha-composite top onto base at integer offset, returning base."""
    base.alpha_composite(top, dest=(int(xy[0]), int(xy[1])))
    return base


def value_noise(w, h, cell, rng):
    """Smooth noise in 0..1 from a random grid of about w/cell by h/cell points, bicubic upsampled."""
    gw = max(2, int(np.ceil(w / cell)) + 2)
    gh = max(2, int(np.ceil(h / cell)) + 2)
    grid = rng.random((gh, gw)).astype(np.float32)
    big = Image.fromarray(grid, "F").resize((gw * cell, gh * cell), Image.BICUBIC)
    arr = np.asarray(big)[cell:cell + h, cell:cell + w]
    return np.clip(arr, 0.0, 1.0).astype(np.float64)


def fbm(w, h, rng, cells=(32, 16, 8, 4, 2)):
    """Sum of octaves of value noise, normalised to 0..1."""
    total = np.zeros((h, w))
    amp, norm = 1.0, 0.0
    for c in cells:
        total += amp * value_noise(w, h, c, rng)
        norm += amp
        amp *= 0.55
    total /= norm
    lo, hi = total.min(), total.max()
    return (total - lo) / max(1e-9, hi - lo)


def shade(color, arr_factor):
    """A colour multiplied by a per-pixel factor, as an (h, w, 3) array."""
    c = np.array(color, dtype=np.float64)
    return arr_factor[..., None] * c[None, None, :]


def solid_rgb(w, h, color):
    return np.ones((h, w, 3)) * np.array(color, dtype=np.float64)[None, None, :]


def with_alpha(rgb, alpha):
    """Stack an (h, w, 3) colour array with an (h, w) alpha array into an RGBA picture."""
    return from_array(np.dstack([rgb, alpha]))


def outline(img, px, color, blur=0.0):
    """Put a dark silhouette of the picture, grown by px pixels, behind it: readable on any ground."""
    a = img.split()[3]
    grown = a.filter(ImageFilter.MaxFilter(2 * px + 1)) if px > 0 else a
    if blur > 0:
        grown = grown.filter(ImageFilter.GaussianBlur(blur))
    sil = Image.new("RGBA", img.size, color[:3] + (0,))
    sil.putalpha(grown.point(lambda v: int(v * (color[3] if len(color) > 3 else 255) / 255)))
    sil.alpha_composite(img)
    return sil


def glow(img, radius, color, strength=1.0):
    """A soft halo of the picture's alpha, coloured, behind the picture."""
    a = img.split()[3].filter(ImageFilter.GaussianBlur(radius))
    a = a.point(lambda v: min(255, int(v * strength)))
    halo = Image.new("RGBA", img.size, color[:3] + (0,))
    halo.putalpha(a)
    halo.alpha_composite(img)
    return halo


def tint_mask(mask, color):
    """An L-mode mask filled with one colour."""
    out = Image.new("RGBA", mask.size, color[:3] + (0,))
    out.putalpha(mask)
    return out


def finish(img, ground=None):
    """Ready a picture for saving, for the way the game draws it.

    ground None: the picture is only drawn blended, so its clear pixels never show; they all get black,
    so nothing random hides in them and a rebuild is byte-identical.
    ground (r, g, b): the picture is drawn with blending off on a ground of that colour. Its clear pixels
    take the ground's colour and each soft edge pixel is mixed with the ground by its alpha, so the picture
    looks there as it would blended; the alpha stays for the meshes that do blend it.
    """
    arr = np.array(img.convert("RGBA"))
    clear = arr[..., 3] == 0
    if ground is None:
        arr[clear, :3] = 0
        return Image.fromarray(arr, "RGBA")
    a = arr[..., 3:4].astype(np.float64) / 255.0
    g = np.array(ground, dtype=np.float64)[None, None, :]
    rgb = arr[..., :3].astype(np.float64) * a + g * (1.0 - a)
    arr[..., :3] = np.clip(np.rint(rgb), 0, 255).astype(np.uint8)
    return Image.fromarray(arr, "RGBA")


def _png_chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF)


def png_bytes(img, opaque=False):
    """The PNG file of a picture: RGBA, or RGB when `opaque` is set and every pixel is opaque (a picture drawn
    unblended edge to edge), with no text, time or gamma chunks, so the same picture always gives the same bytes.

    Every row is stored unfiltered (PNG filter type 0) and deflated at zlib's level 6. The game decodes a level's
    forty-odd pictures each time one starts, and unfiltered rows decode in two thirds of the time the adaptive
    filters take (a third for the tomb wall, whose repeating carvings deflate well as they are), in files no
    larger."""
    arr = np.asarray(img.convert("RGBA"))
    if opaque and bool((arr[..., 3] == 255).all()):
        arr, colour_type = arr[..., :3], 2
    else:
        colour_type = 6
    h, w, channels = arr.shape
    rows = np.zeros((h, 1 + w * channels), dtype=np.uint8)
    rows[:, 1:] = arr.reshape(h, w * channels)
    header = struct.pack(">IIBBBBB", w, h, 8, colour_type, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _png_chunk(b"IHDR", header) +
            _png_chunk(b"IDAT", zlib.compress(rows.tobytes(), 6)) + _png_chunk(b"IEND", b""))
