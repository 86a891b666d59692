"""arrange.py -- turning written parts into sound on a loop buffer.

Owns: playing a list of note events with a voice (with a little human timing and dynamics, slurs for
voices that glide, and the oud's tremolo on long notes), playing drum patterns bar by bar, and the
stereo placement of each part.
"""
import numpy as np

from dsp import SR
from drums import stroke
from mixdown import place


def _nudge(rng, seconds):
    return int(round(rng.normal(0.0, seconds) * SR)) if seconds > 0 else 0


def play_notes(buf, grid, events, voice, rng, tune, gain=1.0, position=0.0, jitter=0.005,
               glides=False, tremolo_from=None, **voice_args):
    """Render each (beat, beats, name, slur) event with `voice` and mix it in.

    tune maps a note name to Hz. With glides, slurred notes start from the pitch before them. With
    tremolo_from, notes at least that many beats long are re-plucked every quarter beat.
    """
    before = None
    for beat, length, name, slur in events:
        f = tune(name)
        start = int(round(beat * grid.beat * SR)) + _nudge(rng, jitter)
        velocity = rng.uniform(0.82, 1.0)
        args = dict(voice_args)
        if glides and slur and before:
            args["glide_from"] = before
        if tremolo_from is not None and length >= tremolo_from:
            _tremolo(buf, grid, f, length, start, voice, rng, gain * velocity, position, args)
        else:
            note = voice(f, grid.seconds(length), rng, **args)
            place(buf, note, start, gain * velocity, position)
        before = f


def _tremolo(buf, grid, f, length, start, voice, rng, gain, position, args):
    step = grid.seconds(0.25)
    strokes = int(round(length / 0.25))
    for i in range(strokes):
        accent = 1.0 if i == 0 else (0.62 if i % 2 else 0.72)
        # The last stroke rings on; the others are cut by the next.
        hold = step * (2.5 if i == strokes - 1 else 1.0)
        note = voice(f, hold, rng, **args)
        offset = start + int(round(i * step * SR)) + _nudge(rng, 0.003)
        place(buf, note, offset, gain * accent, position)


def play_pattern(buf, grid, kit, bars, pattern, rng, gain=1.0, position=0.0, jitter=0.004):
    """Play a one-bar pattern of (beat, stroke name, velocity) in each of the given bars."""
    for bar in bars:
        for beat, name, velocity in pattern:
            start = grid.at(bar, beat) + _nudge(rng, jitter)
            v = velocity * rng.uniform(0.88, 1.0)
            spread = position + rng.uniform(-0.08, 0.08)
            place(buf, stroke(kit, name, rng), start, gain * v, spread)


def play_hits(buf, grid, kit, hits, rng, gain=1.0, position=0.0):
    """Single strokes at (bar, beat, name, velocity)."""
    for bar, beat, name, velocity in hits:
        place(buf, stroke(kit, name, rng), grid.at(bar, beat), gain * velocity, position)


def stem_level(sig):
    """RMS of a stem in dB, to balance parts against each other while composing."""
    return 20.0 * np.log10(np.sqrt(np.mean(sig ** 2)) + 1e-12)
