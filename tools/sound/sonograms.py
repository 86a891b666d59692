#!/usr/bin/python3
"""sonograms.py -- pictures of the four music tracks, for reading their structure by eye.

Run from the repository root after build.py:   /usr/bin/python3 tools/sound/sonograms.py
Writes docs/sound/<name>-sonogram.png: both channels mixed, up to 8 kHz, time across.
"""
import os
import subprocess
import sys

TRACKS = [("ruins", "ANCIENT RUINS - NewAge MSCNEW2_33.ogg"),
          ("ambience", "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg"),
          ("civilization", "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg"),
          ("challenge", "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg")]


def main():
    src = sys.argv[1] if len(sys.argv) > 1 else "assets"
    out = sys.argv[2] if len(sys.argv) > 2 else os.path.join("docs", "sound")
    os.makedirs(out, exist_ok=True)
    for short, name in TRACKS:
        png = os.path.join(out, short + "-sonogram.png")
        subprocess.run(["sox", os.path.join(src, name), "-n", "remix", "-", "rate", "16k",
                        "spectrogram", "-x", "1600", "-y", "513", "-z", "85", "-t", name,
                        "-c", "tools/sound/build.py", "-o", png], check=True)
        print("  " + png)


if __name__ == "__main__":
    main()
