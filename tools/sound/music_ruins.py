"""music_ruins.py -- the menu and level-selection theme: mysterious, in D Hijaz.

Owns the composition. 24 bars of 4/4 at 80 beats a minute, 72 s, looping:
  bars 1-4    a reed drone on D and A, a lone oud feeling out the mode, sparse frame drum
  bars 5-12   the frame drum settles into maqsum; the oud sings the main theme, tremolo on long notes
  bars 13-20  a ney takes an answering theme up to the high E flat; the oud keeps a low ostinato;
              finger cymbals mark the phrases
  bars 21-24  the drum thins out and the oud walks down the mode to D, leading back to the start.
"""
import numpy as np

import voices
from arrange import play_notes, play_pattern, play_hits
from beds import reed_drone, loop_envelope
from drums import make_kit
from mixdown import new_loop, room_impulse, reverb_circular
from theory import Grid, phrase, hijaz

OUD_INTRO = "r:2 D3:1 Eb3:1 | F#3:2 Eb3:1 D3:1 | r:1 A3:1 G3:.5 F#3:.5 Eb3:1 | D3:4"
OUD_THEME = ("A4:1 Bb4:.5 A4:.5 G4:.5 F#4:.5 Eb4:1 | F#4:1.5 Eb4:.5 D4:2 | "
             "D4:.5 Eb4:.5 F#4:.5 G4:.5 A4:1 Bb4:.5 C5:.5 | Bb4:.5 A4:.5 G4:.5 F#4:.5 Eb4:2 | "
             "A4:1 D5:1 C5:.5 Bb4:.5 A4:1 | G4:.5 A4:.5 Bb4:1 A4:.5 G4:.5 F#4:1 | "
             "G4:.5 F#4:.5 Eb4:.5 F#4:.5 G4:1 F#4:.5 Eb4:.5 | D4:3 r:1")
OUD_OSTINATO = "D3:.5 D3:.5 A3:.5 r:.5 D3:.5 r:.5 F#3:.5 G3:.5"
OUD_OUTRO = "A3:1 Bb3:1 A3:1 G3:1 | F#3:2 G3:1 F#3:1 | Eb3:2 F#3:1 Eb3:1 | D3:4"
NEY_THEME = ("D5:2 ~C5:1 ~Bb4:1 | ~A4:3 ~Bb4:.5 ~A4:.5 | G4:1 ~F#4:1 ~G4:1 ~A4:1 | ~F#4:2 ~Eb4:2 | "
             "A4:1 ~Bb4:1 ~C5:1 ~D5:1 | ~Eb5:2 ~D5:2 | C5:1 ~Bb4:1 ~A4:1 ~G4:.5 ~F#4:.5 | ~Eb4:1 ~D4:3")
NEY_OUTRO = "r:4 | A4:4 | ~G4:2 ~F#4:2 | ~D4:3.5"

# Maqsum in eighths: dum, tek, (rest), tek, dum, (rest), tek, (rest), with soft ghost strokes.
MAQSUM = [(0.0, "frame_dum", 1.0), (0.5, "frame_tek", 0.75), (1.0, "frame_tek", 0.3),
          (1.5, "frame_tek", 0.8), (2.0, "frame_dum", 0.9), (2.5, "frame_tek", 0.3),
          (3.0, "frame_tek", 0.8), (3.5, "frame_tek", 0.35)]
SPARSE = [(0.0, "frame_dum", 0.8), (2.5, "frame_tek", 0.4), (3.0, "frame_tek", 0.3)]


def _drone(grid, rng):
    n = grid.length
    out = 0.55 * reed_drone(hijaz("D2"), n, rng, cutoff=900.0)
    out += 0.4 * reed_drone(hijaz("A2"), n, rng, cutoff=1000.0, beat_cycles=31)
    out += 0.25 * reed_drone(hijaz("D3"), n, rng, cutoff=1400.0, beat_cycles=17)
    bar = grid.seconds(4)
    swell = loop_envelope([(0.0, 0.65), (4 * bar, 0.85), (12 * bar, 1.0), (20 * bar, 0.9),
                           (23 * bar, 0.7)], n)
    return out * swell


def _oud(grid, rng):
    buf = new_loop(grid.length)
    play_notes(buf, grid, phrase(OUD_INTRO, 0), voices.pluck, rng, hijaz, gain=0.9, position=-0.2,
               t60=2.4, bright=0.55)
    play_notes(buf, grid, phrase(OUD_THEME, grid.beats_per_bar * 4), voices.pluck, rng, hijaz,
               gain=0.85, position=-0.2, tremolo_from=2.0, t60=1.8, bright=0.65)
    for bar in range(12, 20):
        play_notes(buf, grid, phrase(OUD_OSTINATO, bar * 4), voices.pluck, rng, hijaz, gain=0.45,
                   position=-0.35, t60=1.2, bright=0.4)
    play_notes(buf, grid, phrase(OUD_OUTRO, 20 * 4), voices.pluck, rng, hijaz, gain=0.9, position=-0.2,
               t60=2.4, bright=0.55)
    return buf


def _ney(grid, rng):
    buf = new_loop(grid.length)
    play_notes(buf, grid, phrase(NEY_THEME, 12 * 4), voices.ney, rng, hijaz, gain=0.9, position=0.25,
               glides=True)
    play_notes(buf, grid, phrase(NEY_OUTRO, 20 * 4), voices.ney, rng, hijaz, gain=0.7, position=0.25,
               glides=True)
    return buf


def _drums(grid, kit, rng):
    buf = new_loop(grid.length)
    play_pattern(buf, grid, kit, range(0, 4), SPARSE, rng, gain=0.8)
    play_pattern(buf, grid, kit, range(4, 20), MAQSUM, rng, gain=0.8)
    play_pattern(buf, grid, kit, range(20, 24), SPARSE, rng, gain=0.7)
    hits = [(bar, 0.0, "sagat", 0.35) for bar in (12, 14, 16, 18)]
    play_hits(buf, grid, kit, hits, rng, gain=0.5, position=0.45)
    return buf


def compose(seed):
    """The finished stereo loop, before loudness normalisation."""
    rng = np.random.default_rng(seed)
    grid = Grid(bpm=80, beats_per_bar=4, bars=24)
    kit = make_kit(rng)
    mix = (0.08 * _drone(grid, rng) + 1.75 * _oud(grid, rng) + 0.45 * _ney(grid, rng)
           + 1.3 * _drums(grid, kit, rng))
    return reverb_circular(mix, room_impulse(rng, t60=2.6), wet=0.3)
