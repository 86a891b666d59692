"""music_ambience.py -- the bed under every level: dark, slow, never in a hurry.

Owns the composition. 96 s in four 24 s panels, looping; no beat, nothing sharp, no tune to tire of:
  0-24 s    A minor with an added ninth over a low A drone
  24-48 s   F major seventh: the floor drops a third
  48-72 s   B flat with a raised eleventh: the darkest panel, a thin glassy shimmer above
  72-96 s   E with a flat ninth, hanging, pulling back to A
Throughout: two detuned drones on A and E, stone-cold air in two bands that breathe at different slow
rates, distant bronze resonances at irregular times, and a soft deep boom as each panel turns.
"""
import numpy as np

import voices
from beds import reed_drone, air, lfo, loop_envelope
from dsp import SR, bandpass, chain, highpass, lowpass, filter_causal
from drums import boom
from mixdown import new_loop, place, room_impulse, reverb_circular
from theory import freq

PANEL = 24.0
LENGTH = 4 * PANEL
CHORDS = [["A2", "E3", "C4", "B3"], ["F2", "C3", "A3", "E4"], ["Bb1", "F2", "D3", "A3", "E4"],
          ["E2", "B2", "F3", "D4"]]
# Distant resonances: (seconds, note, pan). Irregular on purpose; each sits in its panel's chord.
RESONANCES = [(3.1, "E5", -0.6), (9.7, "B4", 0.5), (16.4, "C5", -0.2), (21.0, "A4", 0.7),
              (27.8, "A5", 0.3), (33.9, "E5", -0.7), (41.5, "C5", 0.4), (45.2, "F4", -0.3),
              (51.6, "D5", 0.6), (57.3, "A4", -0.5), (64.9, "E5", 0.2), (69.2, "Bb4", -0.6),
              (75.5, "F5", 0.5), (81.8, "B4", -0.4), (88.4, "D5", 0.3), (93.1, "E4", -0.2)]


def _drones(n, rng):
    out = 0.9 * reed_drone(freq("A1"), n, rng, cutoff=380.0, beat_cycles=11, tilt=1.3)
    out += 0.45 * reed_drone(freq("E2"), n, rng, cutoff=420.0, beat_cycles=7, tilt=1.3)
    breathe = 0.8 + 0.2 * lfo(n, 3, 1.0)
    return out * breathe


def _pads(n, rng):
    buf = new_loop(n)
    for i, chord in enumerate(CHORDS):
        start = int((i * PANEL - 4.0) * SR)
        for j, name in enumerate(chord):
            note = voices.pad(freq(name), PANEL - 1.0, rng, cutoff=650.0, attack=6.0, release=9.0,
                              voices=3, detune_cents=9.0, drift=0.0015)
            place(buf, note, start + int(j * 0.7 * SR), 0.5, (j / max(len(chord) - 1, 1)) * 1.2 - 0.6)
    return buf


def _air(n, rng):
    low = air(n, rng, chain(bandpass(520.0, 0.9), lowpass(1500.0, 2))) * (0.6 + 0.4 * lfo(n, 2, 0.3))
    high = air(n, rng, chain(highpass(2800.0, 2), lowpass(7000.0, 2))) * (0.5 + 0.5 * lfo(n, 5, 2.0))
    return 0.05 * low + 0.012 * high


def _resonances(n, rng):
    buf = new_loop(n)
    for seconds, name, position in RESONANCES:
        ring = voices.bell(freq(name), rng.uniform(6.0, 9.0), rng, strike=0.1, brightness=0.6)
        ring = filter_causal(ring, lowpass(2400.0, 2))[:len(ring)]
        place(buf, ring, int(seconds * SR), 0.3 * rng.uniform(0.7, 1.0), position)
    return buf


def _shimmer(n, rng):
    """Glass-thin tones over the third panel, fading in and out with it."""
    t = np.arange(n) / SR
    out = np.zeros(n)
    for name, rate in (("D6", 0.13), ("A6", 0.21), ("E7", 0.17)):
        f = freq(name)
        out += np.sin(2 * np.pi * f * t) * (0.5 + 0.5 * np.sin(2 * np.pi * rate * t))
    shape = loop_envelope([(0.0, 0.0), (2 * PANEL - 2.0, 0.0), (2.5 * PANEL, 1.0),
                           (3 * PANEL, 0.0), (LENGTH - 1.0, 0.0)], n)
    mono = out * shape
    return np.stack([mono * 0.8, np.roll(mono, int(0.013 * SR))])


def _booms(n, rng):
    buf = new_loop(n)
    for i in range(4):
        place(buf, boom(rng), int(i * PANEL * SR) + int(0.2 * SR), 0.5, 0.0)
    return buf


def compose(seed):
    """The finished stereo loop, before loudness normalisation."""
    rng = np.random.default_rng(seed)
    n = int(LENGTH * SR)
    dry = (0.06 * _drones(n, rng) + 0.18 * _pads(n, rng) + _air(n, rng) + 0.04 * _shimmer(n, rng)
           + 1.0 * _booms(n, rng))
    distant = reverb_circular(_resonances(n, rng), room_impulse(rng, t60=6.0, predelay=0.06,
                                                               brightness=2500.0), wet=0.85)
    mix = dry + 1.8 * distant
    return reverb_circular(mix, room_impulse(rng, t60=4.5, predelay=0.03), wet=0.35)
