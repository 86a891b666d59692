"""buttons.py -- every button and short label: lapis plates with gilded capitals, one family for all screens.

Owns: pause buttons ("level_resume.png" ...), menu buttons ("START_TEX.png" ...), "ConfirmationYes.png",
      "ConfirmationNo.png", "BACK_TEX.png", option buttons, level buttons, "creditsbutton.png",
      attribute "+" and "-", the editor buttons (whose meshes stand off centre: the plate is drawn where
      the click box is), "PauseFont.png", "Character_Attribute.png", "SP.png".
"""
import numpy as np

import canvas as C
import materials as M
import palette as P
import text as T
from registry import picture


def plate_button(w, h, label, seed, box=None, size=None, pad=(10, 6), icon=None):
    """A lapis plate with gold rim over box (default the whole picture) and the label in gold capitals."""
    img = C.new(w, h)
    x0, y0, x1, y1 = box if box else (0, 0, w, h)
    pw, ph = x1 - x0, y1 - y0
    plate = M.lapis_plate(pw, ph, seed, radius=max(3, min(pw, ph) // 6))
    img.alpha_composite(plate, dest=(x0, y0))
    if label:
        avail_w = pw - 2 * pad[0] - (ph * 0.7 if icon else 0)
        sz = size or T.fit_size(label, P.FONT_DISPLAY, avail_w, ph - 2 * pad[1], start=min(60, ph))
        cx = x0 + pw / 2 + (ph * 0.35 if icon else 0)
        stroke = 2 if sz >= 18 else 1
        T.gold_text(img, label, (cx, y0 + ph / 2 + 1), sz, stroke=stroke, shadow=1 if sz < 18 else 2)
    if icon:
        icon(img, (x0 + pad[0], y0, x0 + pad[0] + ph * 0.7, y1))
    return img


def family_size(labels, w, h, pad=(6, 7)):
    """One letter size for a family of buttons: the size at which the longest label still fits."""
    return min(T.fit_size(lb, P.FONT_DISPLAY, w - 2 * pad[0], h - 2 * pad[1], start=min(60, h)) for lb in labels)


def _family(rows, drawn, w, h, seed):
    size = family_size([r[1] for r in rows], w, h)
    for i, (name, label, what) in enumerate(rows):
        _words(name, drawn, label, w, h, seed + i, what, size)


def _words(name, drawn, label, w, h, seed, what, size):
    @picture(name, drawn, what)
    def make():
        return plate_button(w, h, label, seed, size=size)
    return make


_family([(f, lb, "pause menu button \"%s\"" % lb) for (f, lb) in
         [("level_resume.png", "RESUME"), ("level_options.png", "OPTIONS"), ("level_levels.png", "LEVELS"),
          ("level_help.png", "HELP"), ("level_exit.png", "EXIT")]], "100x40", 100, 40, 200)
_family([("START_TEX.png", "START", "main menu: start"),
         ("CONTROL_TEX.png", "OPTIONS", "main menu: the middle button, options"),
         ("EXIT_TEX.png", "EXIT", "main menu: exit")], "130x50", 130, 50, 210)
_family([("ConfirmationYes.png", "YES", "confirmation: yes"), ("ConfirmationNo.png", "NO", "confirmation: no")],
        "117x45", 117, 45, 220)
_family([("creditsbutton.png", "CREDITS", "options page of the main menu: credits")], "162x45", 162, 45, 222)
_family([("LVL%d_TEX.png" % n, "LEVEL %d" % n, "level selection: level %d button" % n) for n in range(1, 7)],
        "100x40", 100, 40, 231)


def _arrow_left(img, box):
    x0, y0, x1, y1 = box
    L = C.SSLayer(*img.size)
    cy = (y0 + y1) / 2
    s = (x1 - x0)
    L.poly([(x0, cy), (x0 + s * 0.55, cy - s * 0.5), (x0 + s * 0.55, cy - s * 0.2), (x1, cy - s * 0.2),
            (x1, cy + s * 0.2), (x0 + s * 0.55, cy + s * 0.2), (x0 + s * 0.55, cy + s * 0.5)], P.GOLD + (255,))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))


@picture("BACK_TEX.png", "82x78", "back button of help and options pages and of level selection: arrow and BACK")
def back_button():
    w, h = 82, 78
    img = C.new(w, h)
    plate = M.lapis_plate(w - 4, h - 4, 240, radius=12)
    img.alpha_composite(plate, dest=(2, 2))
    L = C.SSLayer(w, h)
    L.poly([(16, 28), (36, 10), (36, 20), (64, 20), (64, 36), (36, 36), (36, 46)], P.GOLD + (255,))
    L.poly([(20, 28), (33, 16), (33, 23), (61, 23), (61, 27), (33, 27)], P.GOLD_LIGHT + (255,))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))
    T.gold_text(img, "BACK", (w / 2, 60), 20, stroke=1)
    return img


def _fullscreen_icon(img, box):
    x0, y0, x1, y1 = box
    L = C.SSLayer(*img.size)
    L.rect((x0, y0, x1, y1), P.GOLD + (255,), radius=2)
    L.rect((x0 + 3, y0 + 3, x1 - 3, y1 - 3), P.LAPIS_DARK + (255,))
    m = 6
    for (ax, ay, dx, dy) in ((x0 + m, y0 + m, 1, 1), (x1 - m, y0 + m, -1, 1), (x0 + m, y1 - m, 1, -1),
                             (x1 - m, y1 - m, -1, -1)):
        L.poly([(ax, ay), (ax + 8 * dx, ay), (ax, ay + 8 * dy)], P.GOLD_LIGHT + (255,))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))


@picture("Option_fullscreen.png", "111.6x93.6", "options: full screen toggle, a frame with corner arrows")
def option_fullscreen():
    w, h = 112, 94
    img = C.new(w, h)
    img.alpha_composite(M.lapis_plate(w, h, 250, radius=10))
    _fullscreen_icon(img, (32, 10, 80, 48))
    T.gold_text(img, "FULL", (w / 2, 62), 17, stroke=1, shadow=1)
    T.gold_text(img, "SCREEN", (w / 2, 81), 17, stroke=1, shadow=1)
    return img


def _speaker(img, box, plus):
    x0, y0, x1, y1 = box
    L = C.SSLayer(*img.size)
    cy = (y0 + y1) / 2
    L.rect((x0, cy - 5, x0 + 7, cy + 5), P.GOLD + (255,))
    L.poly([(x0 + 6, cy - 5), (x0 + 15, cy - 12), (x0 + 15, cy + 12), (x0 + 6, cy + 5)], P.GOLD + (255,))
    sx = x0 + 24
    L.rect((sx - 7, cy - 2, sx + 7, cy + 2), P.GOLD_LIGHT + (255,))
    if plus:
        L.rect((sx - 2, cy - 7, sx + 2, cy + 7), P.GOLD_LIGHT + (255,))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))


def _volume(plus, seed):
    w, h = 76, 54
    img = C.new(w, h)
    img.alpha_composite(M.lapis_plate(w, h, seed, radius=8))
    _speaker(img, (22, 3, 58, 29), plus)
    label = "VOL UP" if plus else "VOL DOWN"
    size = T.fit_size("VOL DOWN", P.FONT_DISPLAY, w - 10, 16, start=20)
    T.gold_text(img, label, (w / 2, 41), size, stroke=1, shadow=1)
    return img


@picture("Option_volumeup.png", "75.6x54", "options: volume up, speaker and plus")
def option_volume_up():
    return _volume(True, 251)


@picture("Option_volumedown.png", "75.6x54", "options: volume down, speaker and minus")
def option_volume_down():
    return _volume(False, 252)


@picture("Button_incr.png", "50x20", "attribute panel: plus button")
def button_plus():
    return _sign_button(True, 260)


@picture("Button_decr.png", "50x20", "attribute panel: minus button")
def button_minus():
    return _sign_button(False, 261)


def _sign_button(plus, seed):
    w, h = 50, 20
    img = C.new(w, h)
    img.alpha_composite(M.lapis_plate(w, h, seed, radius=4))
    L = C.SSLayer(w, h)
    L.rect((17, 8.4, 33, 11.6), P.GOLD_LIGHT + (255,))
    if plus:
        L.rect((23.4, 2.5, 26.6, 17.5), P.GOLD_LIGHT + (255,))
    img.alpha_composite(C.outline(L.image(), 1, P.VOID + (255,)))
    return img


EDITOR_SIZE = family_size(["CLEAR", "LOAD", "SAVE", "PLAY", "EXIT"], 70, 37, pad=(5, 5))


def _editor_button(name, label, seed, what, w=70):
    # The mesh runs from 17.5 below to 35 above the button's centre: the plate covers the click box,
    # the lower two thirds, and the top third stays clear.
    @picture(name, "%dx52.5" % w if w == 70 else "157.5x52.5", what)
    def make():
        h = 53
        return plate_button(w, h, label, seed, box=(0, 16, w, h), pad=(5, 5), size=EDITOR_SIZE)
    return make


_editor_button("SAVE.png", "SAVE", 270, "editor: save button (mesh off centre, plate on the lower two thirds)")
_editor_button("LOAD.png", "LOAD", 271, "editor and level selection: load button (plate on the lower two thirds)")
_editor_button("CLEAR.png", "CLEAR", 272, "editor: clear button")
_editor_button("PLAY.png", "PLAY", 273, "editor: test play button")
_editor_button("EXIT.png", "EXIT", 274, "editor: exit button")
_editor_button("GE_BTN.png", "LEVEL EDITOR", 275, "level selection: the way into the level editor", w=158)


@picture("PauseFont.png", "200x80", "pause menu title \"PAUSED\"")
def pause_title():
    img = C.new(200, 80)
    sz = T.fit_size("PAUSED", P.FONT_DISPLAY, 184, 52)
    T.gold_text(img, "PAUSED", (100, 38), sz, stroke=2, shadow=3)
    M.stripe_band(img, (30, 68, 170, 74), [P.GOLD, P.LAPIS, P.GOLD], [2, 2, 2])
    return C.glow(img, 4, P.VOID + (0,), 1.2)


@picture("Character_Attribute.png", "379x34", "level selection: the title of the attribute panel")
def attribute_title():
    w, h = 379, 34
    img = C.new(w, h)
    sz = T.fit_size("CHARACTER ATTRIBUTES", P.FONT_DISPLAY, w - 20, h - 8)
    T.gold_text(img, "CHARACTER ATTRIBUTES", (w / 2, h / 2), sz, stroke=1, shadow=2)
    return C.glow(img, 3, P.VOID + (0,), 1.3)


@picture("SP.png", "46.2x28", "level selection: the skill point label beside the number")
def skill_label():
    w, h = 46, 28
    img = C.new(w, h)
    T.gold_text(img, "SP", (w / 2, h / 2), 22, stroke=1, shadow=1)
    return C.glow(img, 2, P.VOID + (0,), 1.4)
