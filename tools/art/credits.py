"""credits.py -- the pictures the credits walk passes: who did what, what we built on and its licences.

Owns: "credits1.png" to "credits4.png" (801.6 x 180 on screen each), "creditsaudio.png", "Copyright.png".
They are seen by torchlight, so the words are bright on a dark carved slab.
"""
import canvas as C
import materials as M
import palette as P
import text as T
from registry import picture


def _slab(seed, title, rows):
    w, h = 802, 180
    img = M.stone_panel(w, h, seed, base=P.STONE_MID, radius=10)
    M.khekher_band(img, (10, 8, w - 10, 18))
    T.gold_text(img, title, (w / 2, 42), 28, stroke=2, shadow=2)
    # The dash column is placed so that the widest name and the widest licence both fit.
    size = 20
    while True:
        left = max(T.measure(a, P.FONT_BODY_BOLD, size, 1)[0] for (a, _b) in rows)
        right = max(T.measure(b, P.FONT_BODY, size, 1)[0] for (_a, b) in rows)
        if left + right + 28 <= w - 40 or size <= 12:
            break
        size -= 1
    mid = 20 + ((w - 40) - (left + right + 28)) / 2 + left + 14
    y = 82
    step = (h - 96) / max(1, len(rows))
    for (a, b) in rows:
        T.plain_text(img, a, (mid - 14, y), size, P.CREAM, P.FONT_BODY_BOLD, stroke=1, anchor="rm")
        T.plain_text(img, "-", (mid, y), size, P.GOLD, P.FONT_BODY, stroke=1)
        T.plain_text(img, b, (mid + 14, y), size, P.GOLD_LIGHT, P.FONT_BODY, stroke=1, anchor="lm")
        y += step
    return img


@picture("credits1.png", "801.6x180", "credits: the game and the roles of the Mandrel team")
def credits_team():
    return _slab(131, "QUILLON", [("A game by", "the Mandrel team"),
                                  ("Design, programming, art and sound", "the Mandrel team"),
                                  ("Published by", "Varnholt Harbour")])


@picture("credits2.png", "801.6x180", "credits: the libraries the game runs on, with licences")
def credits_libraries():
    return _slab(132, "BUILT ON FREE SOFTWARE", [("SDL2, Simple DirectMedia Layer", "zlib licence"),
                                                 ("SDL2_mixer", "zlib licence"),
                                                 ("GLEW, the OpenGL Extension Wrangler", "Modified BSD and MIT licences")])


@picture("credits3.png", "801.6x180", "credits: image and font libraries, and the tools that made the pictures")
def credits_more():
    return _slab(133, "WITH THANKS TO", [("stb_image", "public domain or MIT licence"),
                                         ("FreeType", "FreeType Licence or GPL 2"),
                                         ("Picture tools: Python, Pillow, NumPy", "PSF, HPND and BSD licences")])


@picture("credits4.png", "801.6x180", "credits: the fonts and their licences, and thanks for playing")
def credits_fonts():
    return _slab(134, "FONTS", [("DejaVu fonts; X11 misc-fixed 6x10", "Bitstream Vera licence; public domain"),
                                ("URW base 35 fonts (P052)", "AGPL 3 with font exception"),
                                ("Noto Sans Egyptian Hieroglyphs", "SIL Open Font Licence 1.1")])


@picture("creditsaudio.png", "334.4x35.2", "credits: sound by SDL2_mixer, music and effects from our own generator")
def credits_audio():
    w, h = 334, 35
    img = C.new(w, h)
    T.plain_text(img, "Sound: SDL2_mixer, zlib licence", (w / 2, 10), 14, P.GOLD_LIGHT, P.FONT_BODY_BOLD, stroke=1)
    T.plain_text(img, "Music and effects synthesised by our own generator", (w / 2, 26), 13, P.CREAM,
                 P.FONT_BODY, stroke=1)
    return C.glow(img, 2, P.VOID + (0,), 1.5)


@picture("Copyright.png", "425.6x25.6", "credits: the notice, Quillon (c) 2026 the Mandrel team")
def notice():
    w, h = 426, 26
    img = C.new(w, h)
    T.plain_text(img, "Quillon \u00a9 2026 the Mandrel team. All rights reserved.", (w / 2, h / 2), 16,
                 P.CREAM, P.FONT_BODY_BOLD, stroke=1)
    return C.glow(img, 2, P.VOID + (0,), 1.5)
