"""screens.py -- the big pictures that carry words: title, end screens, help, options, question, tutorials.

Owns: "EgyptMain.png", "WINSCREEN.png", "LOSESCREEN.png", "howtoplay_scroll.png", "Options_menu.png",
      "ConfirmationBox.png", "tutorial1.png", "tutorial2.png", "tutorial3.png".
Pages leave clear the places where the game lays its own buttons over them.
"""
import numpy as np
from PIL import Image, ImageDraw, ImageFilter

import canvas as C
import items as I
import materials as M
import palette as P
import sprites as S
import text as T
import world as W
from registry import picture


@picture("EgyptMain.png", "800x200", "the title QUILLON in gilded capitals between lines of signs, at the foot of the menu")
def title():
    w, h = 800, 200
    img = C.new(w, h)
    # Drawn with its centre 250 below the view's centre, so only the top 150 rows are on screen.
    T.gold_text(img, "QUILLON", (w / 2, 62), 104, stroke=3, shadow=4)
    M.stripe_band(img, (170, 114, 630, 120), [P.GOLD_LIGHT, P.GOLD, P.GOLD_DARK], [2, 2, 2])
    M.hieroglyph_row(img, (200, 123, 600, 145), 61, 20, mode="paint", color=P.GOLD)
    img = C.glow(img, 10, P.VOID + (0,), 1.6)
    return img


def _rays(w, h, centre, color, count, spread, length, alpha, seed):
    """Soft shafts of light fanning up from a point, for the figure of an end screen."""
    rng = np.random.default_rng(seed)
    L = C.SSLayer(w, h, ss=2)
    cx, cy = centre
    for i in range(count):
        a = -np.pi / 2 + (i - (count - 1) / 2.0) * spread / max(1, count - 1) + rng.uniform(-0.04, 0.04)
        half = rng.uniform(0.025, 0.05)
        r = length * rng.uniform(0.7, 1.0)
        L.poly([(cx, cy), (cx + r * np.cos(a - half), cy + r * np.sin(a - half)),
                (cx + r * np.cos(a + half), cy + r * np.sin(a + half))], color + (int(alpha * rng.uniform(0.6, 1.0)),))
    return L.image().filter(ImageFilter.GaussianBlur(6))


# The levels draw the end screens at scale 1.1 over an 800 x 600 view, so a band 30 high above and below
# and 36 wide at each side lies outside it: what matters stays inside.
END_EDGE_Y = 30


def _end_screen(w, h, seed, title, line, accent, figure, light):
    """A full view of the tomb: the title panel and, below it, the figure drawn at full size (not a
    small sprite magnified) in a pool of its own light."""
    img = M.stone_blocks(w, h, seed, course_h=66, block_w=(110, 220), base=P.STONE_MID, cracks=30)
    img = M.darken(img, 0.45)
    img = M.vignette(img, 0.8, 1.6)
    top, bottom = END_EDGE_Y, h - END_EDGE_Y
    fx, fy = (w - figure.size[0]) // 2, bottom - 22 - figure.size[1]
    img.alpha_composite(_rays(w, h, (w / 2, fy + figure.size[1] * 0.55), light, 13, 2.2, 420, 70, seed + 3))
    img.alpha_composite(I.radial(w, h, w / 2, fy + figure.size[1] * 0.6, 260, 120, light, 80, 1.8))
    M.khekher_band(img, (0, top, w, top + 22))
    panel = M.stone_panel(620, 300, seed + 1, base=P.mix(accent, P.STONE_DARK, 0.6))
    py = top + 34
    img.alpha_composite(panel, dest=((w - 620) // 2, py))
    sz = T.fit_size(title, P.FONT_DISPLAY, 560, 70)
    T.gold_text(img, title, (w / 2, py + 100), sz, stroke=3, shadow=4)
    T.plain_text(img, line, (w / 2, py + 180), 26, P.CREAM, P.FONT_BODY, stroke=2, stroke_color=P.VOID)
    M.hieroglyph_row(img, ((w - 520) // 2, py + 230, (w + 520) // 2, py + 270), seed + 2, 34, mode="paint",
                     color=P.GOLD)
    img.alpha_composite(figure, dest=(fx, fy))
    M.khekher_band(img, (0, bottom - 22, w, bottom))
    return img


@picture("WINSCREEN.png", "871.2x660", "won: LEVEL CLEARED over the open exit portal, light pouring from it")
def win_screen():
    return _end_screen(872, 660, 71, "LEVEL CLEARED", "The gate opens to the next chamber", P.TURQUOISE,
                       I.exit_portal(k=4), P.TURQUOISE_LIGHT)


@picture("LOSESCREEN.png", "871.2x660", "lost: LOST IN THE DARK over the explorer's ghost rising in a pale light")
def lose_screen():
    return _end_screen(872, 660, 72, "LOST IN THE DARK", "The tomb keeps another soul", P.CARNELIAN,
                       S.ghost(k=4), P.TURQUOISE)


def _key_cap(img, center, label, size=18):
    """A key as a small gold-edged cap with its name."""
    f_w, _ = T.measure(label, P.FONT_BODY_BOLD, size)
    w = max(34, f_w + 18)
    h = 32
    x0, y0 = center[0] - w / 2, center[1] - h / 2
    L = C.SSLayer(*img.size)
    L.rect((x0, y0, x0 + w, y0 + h), P.GOLD_DARK + (255,), radius=6)
    L.rect((x0 + 2, y0 + 2, x0 + w - 2, y0 + h - 4), P.PAPYRUS + (255,), radius=5)
    img.alpha_composite(L.image())
    T.plain_text(img, label, (center[0], center[1] - 1), size, P.INK, P.FONT_BODY_BOLD)
    return x0 + w


def _help_row(img, y, keys, text_line, keys_right=270, x_text=292):
    """Key caps right-aligned against a column, the explanation to their right."""
    widths = [max(34, T.measure(k, P.FONT_BODY_BOLD, 18)[0] + 18) for k in keys]
    x = keys_right - sum(widths) - 8 * (len(keys) - 1)
    for k, kw in zip(keys, widths):
        _key_cap(img, (x + kw / 2, y), k)
        x += kw + 8
    T.plain_text(img, text_line, (x_text, y), 21, P.INK, P.FONT_BODY, anchor="lm")


def _icon(img, box_h, box_w=None):
    """A game picture made small for the help page: shrunk smoothly to fit box_h high (and box_w wide)."""
    w, h = img.size
    k = box_h / float(h)
    if box_w is not None:
        k = min(k, box_w / float(w))
    return img.resize((max(1, int(round(w * k))), max(1, int(round(h * k)))), Image.LANCZOS)


@picture("howtoplay_scroll.png", "800x600",
         "help page: every control, and everything a player meets: batteries, the zoom eye, spikes, falling "
         "slabs, the boulder and the exit")
def help_page():
    w, h = 800, 600
    img = C.new(w, h)
    sheet = M.papyrus(740, 560, 81)
    mask = C.SSLayer(740, 560)
    mask.rect((0, 0, 740, 560), (255, 255, 255, 255), radius=18)
    sheet.putalpha(mask.image().split()[3])
    img.alpha_composite(sheet, dest=(30, 20))
    M.gold_frame(img, (30, 20, 770, 580), width=4, radius=18, inner=P.PAPYRUS_DARK)
    # Scroll rods top and bottom.
    for y in (8, 572):
        L = C.SSLayer(w, h)
        L.rect((14, y, 786, y + 20), P.GOLD_DARK + (255,), radius=10)
        L.rect((18, y + 3, 782, y + 9), P.GOLD_LIGHT + (255,), radius=3)
        img.alpha_composite(L.image())
    T.gold_text(img, "HOW TO PLAY", (400, 66), 42, stroke=2, shadow=2, edge=P.INK)
    M.stripe_band(img, (150, 92, 650, 98), [P.LAPIS, P.GOLD, P.LAPIS], [2, 2, 2])
    rows = [
        (["A", "D"], "walk left and right"),
        (["SPACE"], "jump"),
        (["LEFT CLICK"], "turn gravity over: walk on the ceiling"),
        (["POINTER"], "aim the torch"),
        (["ESC"], "pause: resume, options, levels, help, exit"),
        (["0"], "restart the level (in some levels)"),
        (["F1"], "full screen on and off"),
    ]
    y = 120
    for keys, line in rows:
        _help_row(img, y, keys, line)
        y += 33
    M.stripe_band(img, (90, y - 14, 710, y - 12), [P.PAPYRUS_DARK], [2])
    y += 8
    # What a player meets, each with its own picture as the game shows it.
    things = [
        (_icon(I.battery_pickup(), 32), "Batteries feed the torch. When it dies, the dark takes you."),
        (_icon(I.power_eye(), 30), "The golden eye lifts the darkness for a few seconds."),
        (_spike_icon(), "Spikes cost one heart. Lose every heart and the level is lost."),
        (_icon(W.dropping_slab().rotate(90, expand=True), 14, 64),
         "Red granite slabs fall the way gravity pulls: keep clear."),
        (_icon(W.boulder(), 30, 64), "In the last level a boulder rolls after you: run for the exit."),
        (_icon(I.exit_portal(), 32), "Reach the exit portal to clear the level."),
    ]
    for icon, line in things:
        img.alpha_composite(icon, dest=(int(150 - icon.size[0] / 2), int(y - icon.size[1] / 2)))
        T.plain_text(img, line, (205, y), 19, P.INK, P.FONT_BODY, anchor="lm")
        y += 35
    return img


def _spike_icon():
    L = C.SSLayer(44, 30)
    for k in range(4):
        x = 2 + k * 10
        L.poly([(x, 28), (x + 5, 4), (x + 10, 28)], (230, 230, 250, 255))
        L.poly([(x + 5, 4), (x + 10, 28), (x + 6, 28)], (170, 170, 200, 255))
    return C.outline(L.image(), 1, P.INK + (255,))


@picture("Options_menu.png", "451.8x491.4", "options page: a gold-framed slab titled OPTIONS; its buttons are laid over it")
def options_page():
    w, h = 452, 492
    img = M.stone_panel(w, h, 91, base=P.STONE_MID, radius=14)
    M.khekher_band(img, (10, 10, w - 10, 26))
    T.gold_text(img, "OPTIONS", (w / 2, 62), 44, stroke=2, shadow=3)
    M.stripe_band(img, (60, 92, w - 60, 98), [P.GOLD, P.LAPIS, P.GOLD], [2, 2, 2])
    M.hieroglyph_column(img, (16, 110, 44, h - 20), 92, 24)
    M.hieroglyph_column(img, (w - 44, 110, w - 16, h - 20), 93, 24)
    return img


@picture("ConfirmationBox.png", "594x358.2", "the question box: ARE YOU SURE? with room below for yes and no")
def confirmation_box():
    w, h = 594, 358
    img = M.stone_panel(w, h, 95, base=P.STONE_MID, radius=16)
    M.khekher_band(img, (12, 12, w - 12, 28))
    T.gold_text(img, "ARE YOU SURE?", (w / 2, 112), 54, stroke=2, shadow=3)
    M.stripe_band(img, (110, 160, w - 110, 166), [P.GOLD, P.LAPIS, P.GOLD], [2, 2, 2])
    return img


def _tutorial(seed, lines, icon):
    w, h = 260, 160
    img = C.new(w, h)
    sheet = M.papyrus(w - 8, h - 8, seed)
    mask = C.SSLayer(w - 8, h - 8)
    mask.rect((0, 0, w - 8, h - 8), (255, 255, 255, 255), radius=10)
    sheet.putalpha(mask.image().split()[3])
    img.alpha_composite(sheet, dest=(4, 4))
    M.gold_frame(img, (2, 2, w - 2, h - 2), width=3, radius=11, inner=P.PAPYRUS_DARK)
    M.khekher_band(img, (12, 10, w - 12, 20))
    icon(img)
    y = 66
    for (big, small) in lines:
        T.gold_text(img, big, (w / 2 + 22, y), 22, stroke=1, shadow=0, top=P.LAPIS_LIGHT, bottom=P.LAPIS_DARK,
                    edge=P.INK)
        T.plain_text(img, small, (w / 2 + 22, y + 22), 15, P.INK, P.FONT_BODY)
        y += 50
    return img


def _keys_icon(img):
    _key_cap(img, (36, 60), "A", 16)
    _key_cap(img, (36, 110), "D", 16)


def _flip_icon(img):
    arrow = I.invert_up().resize((24, 78), Image.LANCZOS)
    img.alpha_composite(arrow, dest=(24, 48))


def _torch_icon(img):
    t = I.battery_pickup()
    img.alpha_composite(t, dest=(16, 92))
    hand = S.torch_hand().resize((45, 45), Image.NEAREST)
    img.alpha_composite(hand, dest=(14, 40))


@picture("tutorial1.png", "259.2x160", "first tutorial box: walking with A and D, jumping with Space")
def tutorial_walk():
    return _tutorial(101, [("A and D walk", "left and right"), ("SPACE jumps", "over gaps and spikes")], _keys_icon)


@picture("tutorial2.png", "259.2x160", "second tutorial box: a left click turns gravity over")
def tutorial_flip():
    return _tutorial(102, [("LEFT CLICK", "turns gravity over"), ("Walk the ceiling", "click again to come down")],
                     _flip_icon)


@picture("tutorial3.png", "259.2x160", "third tutorial box: the pointer aims the torch, batteries feed it")
def tutorial_torch():
    return _tutorial(103, [("The POINTER", "aims your torch"), ("BATTERIES", "keep its light alive")], _torch_icon)
