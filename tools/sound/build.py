#!/usr/bin/python3
"""build.py -- writes every sound and music file the game reads into assets/.

Run from the repository root:   /usr/bin/python3 tools/sound/build.py
Options: --out DIR writes elsewhere; --only NAME[,NAME] builds a subset (by the short names below).

Each entry has its own fixed seed and Ogg stream serial, so a rebuild gives byte-identical files.
Mastering, measured as EBU R128 (r128.py): every music track at -16 LUFS, begun at the bar after which
its first two seconds are loudest, so a loop with no beginning of its own opens in its mood; every effect
at one loudness as the game plays it: the game plays effects at the music volume (0.5 at start) except
the spark, which it plays at full level, so the spark file is mastered 6 dB under the others. Peaks are
held so that the decoded files stay under -1 dBTP. Then every file is measured again, as decoded, into
the loudness report, assets/LOUDNESS.tsv (printed too), which tools/sound/check.py holds to the targets.
"""
import argparse
import os
import sys
import time

import numpy as np

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import effects_noise  # noqa: E402
import effects_voice  # noqa: E402
import music_ambience  # noqa: E402
import music_challenge  # noqa: E402
import music_civilization  # noqa: E402
import music_ruins  # noqa: E402
from audiofile import write_ogg, write_wav  # noqa: E402
from loudness import master, strongest_start  # noqa: E402
import report  # noqa: E402
import r128  # noqa: E402
from audiofile import read_any  # noqa: E402

OGG_QUALITY = 3
CEILING_DB = -2.0  # sample peaks before encoding; Vorbis and the points between samples add up to ~0.7 dB

# short name, file name, kind, seed, ogg serial, maker, bar length in seconds (music: where it may begin)
SOUNDS = [
    ("ruins", "ANCIENT RUINS - NewAge MSCNEW2_33.ogg", "music", 3301, 7301, music_ruins.compose, 3.0),
    ("ambience", "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg", "music", 3302, 7302, music_ambience.compose, 1.0),
    ("civilization", "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg", "music", 3303, 7303,
     music_civilization.compose, 4.0),
    ("challenge", "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg", "music", 3304, 7304,
     music_challenge.compose, 1.6),
    ("jump", "PopVocal CTE02_09.6.wav", "effect", 3311, 0, effects_voice.jump_hup, 0),
    ("gravity", "SCI-FI-PASS-BY_GEN-HDF-20746.ogg", "effect", 3312, 7312, effects_noise.gravity_whoosh, 0),
    ("scream", "HUMAN-SCREAM_GEN-HDF-15252.wav", "effect", 3313, 0, effects_voice.pained_cry, 0),
    ("rock", "RockImpact CTE02_24.1.wav", "effect", 3314, 0, effects_noise.rock_impact, 0),
    ("spark", "Electricity_Spark_Activate.ogg", "effect", 3315, 7315, effects_noise.spark_pickup, 0),
]


def file_target(file_name):
    """The loudness a file is mastered to: the music's own, or an effect's level at play minus the gain
    the game plays it with."""
    row = report.TARGETS[file_name]
    return row["target"] - row["play_db"]


def write(path, sig, serial):
    if path.endswith(".ogg"):
        write_ogg(path, sig, OGG_QUALITY, serial)
    else:
        write_wav(path, sig)


def build_one(out_dir, entry):
    short, file_name, kind, seed, serial, maker, bar = entry
    started = time.time()
    sig = maker(seed)
    begins = ""
    if kind == "music":
        start = strongest_start(sig, bar)
        sig = np.roll(sig, -start, axis=1)
        begins = ", begins at %.1f s of the score" % (start / 44100.0)
    path = os.path.join(out_dir, file_name)
    ceiling = CEILING_DB
    # Master, write, decode and measure; should the decoded file still peak over its limit, master
    # again under a lower ceiling. The same steps every run, so the same bytes.
    for _ in range(4):
        out = master(sig, file_target(file_name), ceiling, circular=(kind == "music"))
        write(path, out, serial)
        decoded, rate = read_any(path)
        peak = r128.true_peak(decoded)
        if peak <= report.TRUE_PEAK_LIMIT - 0.1:
            break
        ceiling -= 0.5
    print("  %-13s %6.1f s  %-48s (%.1f s to make%s)" % (short, out.shape[-1] / 44100.0, file_name,
                                                         time.time() - started, begins))
    # The written file as decoded, with its true peak: the loudness report measures the rest from it.
    return decoded, rate, peak


def main():
    parser = argparse.ArgumentParser(description="Make the game's sound files.")
    parser.add_argument("--out", default="assets")
    parser.add_argument("--only", default="")
    args = parser.parse_args()
    wanted = set(filter(None, args.only.split(",")))
    unknown = wanted - {e[0] for e in SOUNDS}
    if unknown:
        parser.error("unknown sound(s): " + ", ".join(sorted(unknown)))
    os.makedirs(args.out, exist_ok=True)
    print("sound: writing into " + args.out)
    decoded = {}
    for entry in SOUNDS:
        if not wanted or entry[0] in wanted:
            decoded[entry[1]] = build_one(args.out, entry)
    if not wanted:
        rows = report.measure_all(args.out, decoded)
        text = report.format_tsv(rows)
        with open(os.path.join(args.out, report.REPORT_NAME), "w", encoding="utf-8") as f:
            f.write(text)
        print(report.format_table(rows))


if __name__ == "__main__":
    main()
