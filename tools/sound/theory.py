"""theory.py -- pitches, modes and the beat grid that the compositions are written in.

Owns: note names to frequencies (with the Hijaz colouring of its second and third), scale-degree lookup
and the conversion of bars and beats to sample positions.
"""
import re

from dsp import SR

_NAMES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}

# Cent offsets that give the Hijaz tetrachord its colour: the small second a little high, the third
# a little low, so the augmented step between them is narrower than three tempered semitones.
HIJAZ_CENTS = {"Eb": 14.0, "F#": -14.0}


def midi(name):
    """'D4', 'Eb3', 'F#5' -> MIDI number (C4 = 60)."""
    m = re.fullmatch(r"([A-G])([b#]?)(-?\d)", name)
    if not m:
        raise ValueError("bad note name " + name)
    letter, accidental, octave = m.groups()
    value = _NAMES[letter] + {"": 0, "b": -1, "#": 1}[accidental]
    return 12 * (int(octave) + 1) + value


def freq(name, colour=None):
    """Frequency of a note; colour maps pitch classes ('Eb') to cent offsets."""
    cents = 0.0
    if colour:
        cents = colour.get(re.sub(r"-?\d", "", name), 0.0)
    return 440.0 * 2.0 ** ((midi(name) - 69 + cents / 100.0) / 12.0)


def hijaz(name):
    return freq(name, HIJAZ_CENTS)


class Grid:
    """A tempo grid over a loop: positions in beats become sample offsets."""

    def __init__(self, bpm, beats_per_bar, bars):
        self.beat = 60.0 / bpm
        self.beats_per_bar = beats_per_bar
        self.bars = bars
        self.length = int(round(bars * beats_per_bar * self.beat * SR))

    def at(self, bar, beat=0.0):
        """Sample offset of a bar (counted from 0) and a beat within it."""
        return int(round((bar * self.beats_per_bar + beat) * self.beat * SR))

    def seconds(self, beats):
        return beats * self.beat


def phrase(text, start_beat=0.0):
    """Parse 'A4:1 Bb4:.5 r:1 ~D5:2' into (beat, beats, name, slur) events from start_beat.

    'r' is a rest; a leading '~' slurs the note from the one before it; '|' separates bars and is
    only for the reader.
    """
    events = []
    beat = start_beat
    for token in text.split():
        if token == "|":
            continue
        name, length = token.split(":")
        length = float(length)
        if name != "r":
            slur = name.startswith("~")
            events.append((beat, length, name.lstrip("~"), slur))
        beat += length
    return events
