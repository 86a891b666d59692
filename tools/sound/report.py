"""report.py -- the loudness targets of the game's sounds and the report that measures each file against them.

Owns: the targets (music at -16 LUFS within 1 LU; every effect at -22 LUFS within 1.5 LU as the game plays
it, so effects lie within 3 LU of each other; true peak at most -1 dBTP everywhere; through a 200 Hz
high-pass, a laptop speaker, no effect loses more than 4 LU and no music more than 3.5 LU, the chase, which
must drive on any speaker, no more than 2 LU; through that
high-pass, a music track's first two seconds at most 1.5 LU under its whole: it opens with its melody,
chords and drums, not near silence or a bare drone), the measuring of the decoded files and "LOUDNESS.tsv", the
report kept beside the manifest in assets/.
The game plays music and effects at the music volume, 0.5 at start, except the spark, which it plays at
full level: the play gain below is that, relative to the music.
Read by: build.py (writes and prints the report) and check.py (fails on any file off its target).
"""
import os

import numpy as np

import r128
from audiofile import read_any

REPORT_NAME = "LOUDNESS.tsv"
TRUE_PEAK_LIMIT = -1.0
MUSIC_TARGET, MUSIC_TOL = -16.0, 1.0
EFFECT_TARGET, EFFECT_TOL = -22.0, 1.5
SPEAKER_LOSS = {"music": 3.5, "effect": 4.0}
OPENING_LOSS = 1.5
HALF = 20.0 * np.log10(0.5)


def _music(role, speaker_loss=SPEAKER_LOSS["music"]):
    return {"kind": "music", "role": role, "play_db": 0.0, "target": MUSIC_TARGET, "tol": MUSIC_TOL,
            "speaker_loss": speaker_loss}


def _effect(role, play_db=HALF):
    return {"kind": "effect", "role": role, "play_db": play_db, "target": EFFECT_TARGET, "tol": EFFECT_TOL,
            "speaker_loss": SPEAKER_LOSS["effect"]}


TARGETS = {
    "ANCIENT RUINS - NewAge MSCNEW2_33.ogg": _music("menu music"),
    "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg": _music("level music"),
    "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg": _music("credits music"),
    "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg": _music("boulder chase music", 2.0),
    "PopVocal CTE02_09.6.wav": _effect("jump"),
    "SCI-FI-PASS-BY_GEN-HDF-20746.ogg": _effect("gravity flip"),
    "HUMAN-SCREAM_GEN-HDF-15252.wav": _effect("hit"),
    "RockImpact CTE02_24.1.wav": _effect("drop-wall landing"),
    "Electricity_Spark_Activate.ogg": _effect("battery pickup (played at full level)", 0.0),
}
COLUMNS = ["file", "role", "play dB", "LUFS", "LUFS at play", "target", "dBTP", "LUFS 200 Hz HP",
           "HP loss LU", "first 2 s LUFS 200 Hz HP", "verdict"]


def measure(path, decoded=None):
    """A file's figures, from the file or from what decoding it gave (samples, rate, true peak) when known."""
    sig, rate, tp = decoded if decoded is not None else read_any(path) + (None,)
    figures = {"lufs": r128.integrated(sig, rate), "tp": r128.true_peak(sig) if tp is None else tp,
               "speaker": r128.integrated(sig, rate, speaker=True)}
    figures["opening"] = r128.integrated(sig[:, :int(2 * rate)], rate, speaker=True)
    return figures


def problems(name, f):
    """What is wrong with one file's figures, as texts (empty when it meets every target)."""
    t = TARGETS[name]
    out = []
    at_play = f["lufs"] + t["play_db"]
    if abs(at_play - t["target"]) > t["tol"]:
        out.append("%.1f LUFS as played, wants %.1f +- %.1f" % (at_play, t["target"], t["tol"]))
    if f["tp"] > TRUE_PEAK_LIMIT:
        out.append("true peak %.2f dBTP over %.1f" % (f["tp"], TRUE_PEAK_LIMIT))
    loss = f["lufs"] - f["speaker"]
    if loss > t["speaker_loss"]:
        out.append("loses %.1f LU through a 200 Hz high-pass (at most %.1f)" % (loss, t["speaker_loss"]))
    if t["kind"] == "music" and f["speaker"] - f["opening"] > OPENING_LOSS:
        out.append("first two seconds %.1f LU under the track through the high-pass (at most %.1f)"
                   % (f["speaker"] - f["opening"], OPENING_LOSS))
    return out


def measure_all(folder, decoded=None):
    """Every file's figures and problems; decoded maps a file name to its decoding, when already known."""
    rows = []
    for name in TARGETS:
        f = measure(os.path.join(folder, name), (decoded or {}).get(name))
        rows.append((name, f, problems(name, f)))
    return rows


def _cells(name, f, found):
    t = TARGETS[name]
    return [name, t["role"], "%.1f" % t["play_db"], "%.1f" % f["lufs"], "%.1f" % (f["lufs"] + t["play_db"]),
            "%.0f" % t["target"], "%.1f" % f["tp"], "%.1f" % f["speaker"], "%.1f" % (f["lufs"] - f["speaker"]),
            "%.1f" % f["opening"] if t["kind"] == "music" else "-", "; ".join(found) if found else "ok"]


def format_tsv(rows):
    lines = ["\t".join(COLUMNS)] + ["\t".join(_cells(*row)) for row in rows]
    return "\n".join(lines) + "\n"


def format_table(rows):
    head = "%-46s %6s %7s %6s %6s %6s %6s  %s" % ("loudness report (EBU R128)", "LUFS", "played", "dBTP",
                                                  "HP", "loss", "open", "verdict")
    lines = [head]
    for name, f, found in rows:
        c = _cells(name, f, found)
        lines.append("%-46s %6s %7s %6s %6s %6s %6s  %s" % (name[:46], c[3], c[4], c[6], c[7], c[8], c[9], c[10]))
    return "\n".join(lines)
