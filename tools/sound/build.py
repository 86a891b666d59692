#!/usr/bin/python3
"""build.py -- writes every sound and music file the game reads into assets/.

Run from the repository root:   /usr/bin/python3 tools/sound/build.py
Options: --out DIR writes elsewhere; --only NAME[,NAME] builds a subset (by the short names below).

Each entry has its own fixed seed and Ogg stream serial, so a rebuild gives byte-identical files.
Music is brought to one common loudness with its peaks under a ceiling; effects are peak-normalised.
"""
import argparse
import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import effects_noise  # noqa: E402
import effects_voice  # noqa: E402
import music_ambience  # noqa: E402
import music_challenge  # noqa: E402
import music_civilization  # noqa: E402
import music_ruins  # noqa: E402
from audiofile import write_ogg, write_wav  # noqa: E402
from loudness import normalise, normalise_peak  # noqa: E402

MUSIC_LOUDNESS = -18.0
MUSIC_CEILING_DB = -1.5
EFFECT_PEAK_DB = -1.5
OGG_QUALITY = 3

# short name, file name, kind, seed, ogg serial, maker
SOUNDS = [
    ("ruins", "ANCIENT RUINS - NewAge MSCNEW2_33.ogg", "music", 3301, 7301, music_ruins.compose),
    ("ambience", "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg", "music", 3302, 7302, music_ambience.compose),
    ("civilization", "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg", "music", 3303, 7303,
     music_civilization.compose),
    ("challenge", "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg", "music", 3304, 7304,
     music_challenge.compose),
    ("jump", "PopVocal CTE02_09.6.wav", "effect", 3311, 0, effects_voice.jump_hup),
    ("gravity", "SCI-FI-PASS-BY_GEN-HDF-20746.ogg", "effect", 3312, 7312, effects_noise.gravity_whoosh),
    ("scream", "HUMAN-SCREAM_GEN-HDF-15252.wav", "effect", 3313, 0, effects_voice.pained_cry),
    ("rock", "RockImpact CTE02_24.1.wav", "effect", 3314, 0, effects_noise.rock_impact),
    ("spark", "Electricity_Spark_Activate.ogg", "effect", 3315, 7315, effects_noise.spark_pickup),
]


def build_one(out_dir, entry):
    short, file_name, kind, seed, serial, maker = entry
    started = time.time()
    sig = maker(seed)
    if kind == "music":
        sig = normalise(sig, MUSIC_LOUDNESS, MUSIC_CEILING_DB, circular=True)
    else:
        sig = normalise_peak(sig, EFFECT_PEAK_DB)
    path = os.path.join(out_dir, file_name)
    if file_name.endswith(".ogg"):
        write_ogg(path, sig, OGG_QUALITY, serial)
    else:
        write_wav(path, sig)
    print("  %-13s %6.1f s  %-48s (%.1f s to make)" % (short, sig.shape[-1] / 44100.0, file_name,
                                                       time.time() - started))


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
    for entry in SOUNDS:
        if not wanted or entry[0] in wanted:
            build_one(args.out, entry)


if __name__ == "__main__":
    main()
