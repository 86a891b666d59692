"""music_civilization.py -- the credits: reflective, slow and warm, in D minor.

Owns the composition. 18 bars of 4/4 at 60 beats a minute, 72 s, looping:
  bars 1-2    D minor: strings and a harp alone, a bowl rung once
  bars 3-10   the ney sings the first phrase over Dm Bb F C Gm Bb F A
  bars 11-18  the answer climbs higher over Bb F Gm Dm Bb C Asus4 A, a frame drum beating softly
              like a slow heart; the A major at the end leans back into the opening D minor.
"""
import numpy as np

import voices
from arrange import play_notes, play_hits
from drums import make_kit
from mixdown import new_loop, place, room_impulse, reverb_circular
from theory import Grid, phrase, freq

# chord: (bass, pad voicing, harp arpeggio in eighths)
CHORDS = {
    "Dm": ("D2", ["D3", "F3", "A3"], "D3 A3 D4 F4 A4 F4 D4 A3"),
    "Bb": ("Bb1", ["D3", "F3", "Bb3"], "Bb2 F3 Bb3 D4 F4 D4 Bb3 F3"),
    "F": ("F2", ["C3", "F3", "A3"], "F2 C3 F3 A3 C4 A3 F3 C3"),
    "C": ("C2", ["C3", "E3", "G3"], "C3 G3 C4 E4 G4 E4 C4 G3"),
    "Gm": ("G2", ["D3", "G3", "Bb3"], "G2 D3 G3 Bb3 D4 Bb3 G3 D3"),
    "A": ("A1", ["C#3", "E3", "A3"], "A2 E3 A3 C#4 E4 C#4 A3 E3"),
    "Asus4": ("A1", ["D3", "E3", "A3"], "A2 E3 A3 D4 E4 D4 A3 E3"),
}
PROGRESSION = ["Dm", "Dm", "Dm", "Bb", "F", "C", "Gm", "Bb", "F", "A",
               "Bb", "F", "Gm", "Dm", "Bb", "C", "Asus4", "A"]
MELODY_A = ("A4:2 ~D5:1 ~C5:1 | ~Bb4:3 ~A4:1 | A4:2 ~G4:1 ~F4:1 | G4:3 ~E4:1 | "
            "D4:1.5 ~F4:.5 ~G4:1 ~Bb4:1 | A4:2 ~G4:1 ~F4:1 | F4:1 ~E4:1 ~F4:1 ~A4:1 | ~E4:4")
MELODY_B = ("D5:2 ~F5:1 ~E5:1 | C5:3 ~A4:1 | Bb4:2 ~A4:1 ~G4:1 | A4:3 ~F4:1 | "
            "G4:1 ~A4:1 ~Bb4:1 ~D5:1 | C5:2 ~Bb4:1 ~G4:1 | A4:2 ~D5:2 | ~C#5:3 ~E4:1")
HEARTBEAT = [(0.0, "frame_dum", 0.7), (0.6, "frame_dum", 0.4)]


def _strings(grid, rng):
    buf = new_loop(grid.length)
    for bar, name in enumerate(PROGRESSION):
        _, voicing, _ = CHORDS[name]
        for j, note in enumerate(voicing):
            tone = voices.pad(freq(note), grid.seconds(4) + 0.3, rng, cutoff=1100.0, attack=0.9,
                              release=1.6, voices=3, detune_cents=7.0, drift=0.001)
            place(buf, tone, grid.at(bar) - int(0.15 * 44100), 0.5, -0.5 + 0.5 * j)
    return buf


def _bass(grid, rng):
    buf = new_loop(grid.length)
    for bar, name in enumerate(PROGRESSION):
        root = freq(CHORDS[name][0])
        tone = voices.pad(root, grid.seconds(3.8), rng, cutoff=300.0, attack=0.3, release=1.0, voices=2,
                          detune_cents=3.0)
        place(buf, tone, grid.at(bar), 1.0, 0.0)
    return buf


def _harp(grid, rng):
    buf = new_loop(grid.length)
    for bar, name in enumerate(PROGRESSION):
        notes = CHORDS[name][2].split()
        if bar >= 10:
            # The answer's arpeggio climbs an octave on its way back down.
            notes = notes[:4] + [n[:-1] + str(int(n[-1]) + 1) for n in notes[4:6]] + notes[6:]
        text = " ".join(n + ":.5" for n in notes)
        play_notes(buf, grid, phrase(text, bar * 4), voices.pluck, rng, freq, gain=0.8, position=0.35,
                   jitter=0.008, t60=3.0, bright=0.45, pos=0.3, course=1.0, body=False, release=0.8)
    return buf


def _melody(grid, rng):
    buf = new_loop(grid.length)
    for text, bar in ((MELODY_A, 2), (MELODY_B, 10)):
        play_notes(buf, grid, phrase(text, bar * 4), voices.ney, rng, freq, gain=1.0, position=-0.15,
                   glides=True, breath=0.22, vibrato=0.005, attack=0.14, release=0.35)
    return buf


def _percussion(grid, kit, rng):
    buf = new_loop(grid.length)
    hits = [(bar, beat, name, vel) for bar in range(10, 18) for beat, name, vel in HEARTBEAT]
    play_hits(buf, grid, kit, hits, rng, gain=0.9)
    for bar, name in ((0, "D5"), (10, "F5")):
        ring = voices.bell(freq(name), 7.0, rng, strike=0.2, brightness=0.5)
        place(buf, ring, grid.at(bar), 0.5, 0.3)
    return buf


def compose(seed):
    """The finished stereo loop, before loudness normalisation."""
    rng = np.random.default_rng(seed)
    grid = Grid(bpm=60, beats_per_bar=4, bars=len(PROGRESSION))
    kit = make_kit(rng)
    mix = (0.14 * _strings(grid, rng) + 0.075 * _bass(grid, rng) + 0.5 * _harp(grid, rng)
           + 0.28 * _melody(grid, rng) + 0.65 * _percussion(grid, kit, rng))
    return reverb_circular(mix, room_impulse(rng, t60=3.2, predelay=0.03, brightness=3500.0), wet=0.35)
