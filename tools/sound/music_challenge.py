"""music_challenge.py -- the boulder chase: urgent, driven by drums and an ostinato that never rests.

Owns the composition. 40 bars of 4/4 at 150 beats a minute, 64 s, looping, in D Hijaz:
  bars 1-8    taiko and darbuka at full tilt, the bass ostinato in sixteenths, plucked eighths and a
              shaker in sixteenths on top from the first beat, brass stabs pushing the off-beats
  bars 9-16   the backbeat joins, the stabs go on
  bars 17-24  the mizmar's theme over G minor and E flat
  bars 25-32  everything: taiko on each beat, the theme high, brass answering
  bars 33-40  the floor drops to bass and darbuka while a riser climbs, toms crash back into bar 1.
Every eighth bar ends in a tom fill. A chase lives in its middle and top: the sixteenths of shaker and
plucks never stop, the bass and taiko are kept lean, and the mix is tilted bright (a cut under 70 Hz,
a shelf up above 2.5 kHz), so it drives on a laptop's speaker too.
"""
import numpy as np

import voices
from arrange import play_notes, play_pattern, play_hits
from dsp import chain, filter_circular, high_shelf, highpass
from drums import make_kit, riser
from mixdown import new_loop, place, room_impulse, reverb_circular
from theory import Grid, phrase, hijaz

ROOTS = (["D", "D", "D", "D", "Eb", "Eb", "D", "D"] + ["D", "D", "Eb", "Eb", "Gm", "Gm", "Cm", "D"]
         + ["Gm", "Gm", "Eb", "Eb", "D", "D", "Eb", "D"] + ["D", "Eb", "D", "Eb", "Gm", "Cm", "D", "D"]
         + ["D", "D", "D", "D", "D", "D", "Eb", "Eb"])
# chord: (bass note, plucked eighths, brass stab voicing)
CHORDS = {
    "D": ("D2", "D4 A3 Eb4 A3 F#4 A3 Eb4 A3", ["D4", "F#4", "A4"]),
    "Eb": ("Eb2", "Eb4 Bb3 G4 Bb3 Eb4 Bb3 G4 Bb3", ["Eb4", "G4", "Bb4"]),
    "Gm": ("G2", "G3 D4 Bb3 D4 G4 D4 Bb3 D4", ["G3", "Bb3", "D4"]),
    "Cm": ("C2", "C4 G3 Eb4 G3 C4 G3 Eb4 G3", ["C4", "Eb4", "G4"]),
}
# Bass in sixteenths: octave leaps on a 3-3-2 accent; over D the last group turns Phrygian.
BASS_STEPS = [0, 0, 12, 0, 0, 0, 12, 0, 0, 0, 12, 0, 0, 0, 12, 0]
BASS_TAIL_D = [1, 0, 12, -2]
BASS_ACCENT = [1.0, 0.6, 0.7, 1.0, 0.6, 0.7, 1.0, 0.6, 0.8, 0.6, 1.0, 0.6, 0.9, 0.6, 0.8, 0.6]
STAB_BEATS = [0.0, 0.75, 1.5, 3.5]
THEME_C = ("D5:1.5 C5:.5 Bb4:1 D5:1 | G5:2 ~F#5:1 ~G5:1 | Bb4:.5 C5:.5 D5:.5 Eb5:.5 G5:1 ~F#5:.5 ~Eb5:.5 | "
           "D5:3 r:1 | A4:.5 Bb4:.5 A4:.5 G4:.5 F#4:1 A4:1 | D5:2 ~Eb5:1 ~D5:1 | "
           "Eb5:1 ~D5:.5 ~C5:.5 Bb4:1 G4:1 | F#4:.5 G4:.5 A4:.5 Bb4:.5 A4:2")
THEME_D = ("D5:1 A4:.5 D5:.5 Eb5:1 D5:1 | G5:1.5 ~F#5:.5 ~Eb5:1 D5:1 | F#5:1 Eb5:.5 D5:.5 A4:2 | "
           "Bb4:1 C5:.5 D5:.5 Eb5:2 | D5:1 G5:1 ~F#5:.5 ~G5:.5 A5:1 | G5:1 Eb5:1 C5:1 Eb5:.5 D5:.5 | "
           "D5:3 ~Eb5:.5 ~D5:.5 | A4:.5 Bb4:.5 A4:.5 G4:.5 F#4:.5 Eb4:.5 D4:1")

DARBUKA = [(0.0, "darbuka_dum", 1.0), (0.5, "darbuka_tek", 0.7), (0.75, "darbuka_ka", 0.6),
           (1.0, "darbuka_tek", 1.0), (1.5, "darbuka_tek", 0.7), (1.75, "darbuka_ka", 0.6),
           (2.0, "darbuka_dum", 0.9), (2.5, "darbuka_tek", 0.7), (2.75, "darbuka_ka", 0.6),
           (3.0, "darbuka_tek", 1.0), (3.25, "darbuka_ka", 0.5), (3.5, "darbuka_tek", 0.7),
           (3.75, "darbuka_ka", 0.6)]
TAIKO_DRIVE = [(0.0, "taiko", 1.0), (1.5, "taiko", 0.7), (2.5, "taiko", 0.8)]
TAIKO_FULL = [(0.0, "taiko", 1.0), (1.0, "taiko", 0.7), (2.0, "taiko", 0.9), (2.75, "taiko", 0.6),
              (3.0, "taiko", 0.8)]
BACKBEAT = [(1.0, "clap", 0.8), (3.0, "clap", 0.9)]
SHAKER = [(i * 0.25, "shaker", 0.8 if i % 2 == 0 else 0.45) for i in range(16)]
FILL = [(2.0, "tom_high", 0.9), (2.25, "tom_high", 0.7), (2.5, "tom_mid", 0.9), (2.75, "tom_mid", 0.7),
        (3.0, "tom_low", 1.0), (3.25, "tom_low", 0.8), (3.5, "taiko", 0.9), (3.75, "tom_low", 0.9)]


def _bass(grid, rng):
    buf = new_loop(grid.length)
    for bar, root in enumerate(ROOTS):
        base = hijaz(CHORDS[root][0])
        steps = BASS_STEPS[:12] + BASS_TAIL_D if root == "D" else BASS_STEPS
        for i, step in enumerate(steps):
            note = voices.bass_pluck(base * 2.0 ** (step / 12.0), grid.seconds(0.2), rng,
                                     bright=0.5 + 0.5 * BASS_ACCENT[i])
            place(buf, note, grid.at(bar, i * 0.25), BASS_ACCENT[i], 0.0)
    return buf


def _plucks(grid, rng):
    buf = new_loop(grid.length)
    for bar in range(0, 40):
        text = " ".join(n + ":.5" for n in CHORDS[ROOTS[bar]][1].split())
        play_notes(buf, grid, phrase(text, bar * 4), voices.pluck, rng, hijaz, gain=0.8, position=0.3,
                   jitter=0.003, t60=0.9, bright=0.7, release=0.06)
    return buf


def _stabs(grid, rng):
    buf = new_loop(grid.length)
    for bar in list(range(0, 16)) + list(range(24, 32)):
        for beat in STAB_BEATS:
            for j, name in enumerate(CHORDS[ROOTS[bar]][2]):
                note = voices.brass(hijaz(name), grid.seconds(0.3), rng, bright=1.1)
                place(buf, note, grid.at(bar, beat), 0.8, -0.4 + 0.4 * j)
    return buf


def _theme(grid, rng):
    buf = new_loop(grid.length)
    play_notes(buf, grid, phrase(THEME_C, 16 * 4), voices.mizmar, rng, hijaz, gain=1.0, position=-0.1,
               jitter=0.002, glides=False)
    play_notes(buf, grid, phrase(THEME_D, 24 * 4), voices.mizmar, rng, hijaz, gain=1.0, position=-0.1,
               jitter=0.002)
    play_notes(buf, grid, phrase(THEME_D, 24 * 4), voices.brass, rng, lambda n: hijaz(n) / 2.0,
               gain=0.5, position=0.2, jitter=0.002)
    return buf


def _drums(grid, kit, rng):
    buf = new_loop(grid.length)
    play_pattern(buf, grid, kit, range(0, 40), DARBUKA, rng, gain=0.55, position=0.15)
    play_pattern(buf, grid, kit, range(0, 40), SHAKER, rng, gain=0.3, position=-0.4)
    play_pattern(buf, grid, kit, list(range(0, 24)) + list(range(36, 39)), TAIKO_DRIVE, rng, gain=0.6)
    play_pattern(buf, grid, kit, range(24, 32), TAIKO_FULL, rng, gain=0.6)
    play_pattern(buf, grid, kit, range(8, 32), BACKBEAT, rng, gain=0.4, position=0.05)
    play_hits(buf, grid, kit, [(bar, 0.0, "taiko", 0.8) for bar in range(32, 36)], rng, gain=0.9)
    fills = [(bar, beat, name, vel) for bar in (7, 15, 23, 31, 39) for beat, name, vel in FILL]
    play_hits(buf, grid, kit, fills, rng, gain=0.8)
    play_hits(buf, grid, kit, [(bar, 0.0, "sagat", 0.9) for bar in (0, 8, 16, 24)], rng, gain=0.3,
              position=0.5)
    rise = riser(grid.seconds(16), rng)
    place(buf, rise, grid.at(36), 0.25, 0.0)
    return buf


def compose(seed):
    """The finished stereo loop, before loudness normalisation."""
    rng = np.random.default_rng(seed)
    grid = Grid(bpm=150, beats_per_bar=4, bars=len(ROOTS))
    kit = make_kit(rng)
    mix = (0.15 * _bass(grid, rng) + 0.7 * _plucks(grid, rng) + 0.2 * _stabs(grid, rng)
           + 0.26 * _theme(grid, rng) + 0.83 * _drums(grid, kit, rng))
    mix = filter_circular(mix, chain(highpass(70.0, 2), high_shelf(2500.0, 4.0)))
    return reverb_circular(mix, room_impulse(rng, t60=1.6, predelay=0.015), wet=0.18)
