#!/usr/bin/python3
"""check.py -- proves that the nine sound files in assets/ are what the game needs.

Run from the repository root:   /usr/bin/python3 tools/sound/check.py [--dir assets]

For every file: it exists, sox reads it, our own decoder reads it, the container and sample format are
the ones the game's loader expects, nothing clips and the peak stays under the ceiling. For music: at
least 60 s long, 44.1 kHz stereo Ogg Vorbis, one common loudness (K-weighted and plain RMS), and the loop
point joins without a click or a fade. For effects: short, starting and ending in silence; the hit cry bright enough to read as a voice.
Loudness, as EBU R128 (report.py): each file on its target (music -16 LUFS; effects -22 LUFS as the game
plays them, the spark at full level, the others at half), true peak at most -1 dBTP, audible through a
200 Hz high-pass, music opening in its mood; and assets/LOUDNESS.tsv, the report, agrees with the files.
With --figures-from-report the report's own figures and verdicts are held to those targets, without measuring
the files again: make test runs it so, beside `make assets` in a clean copy, which measures every file afresh
into that report and fails if it changes by a byte.
With --rebuild it also builds everything afresh and requires byte-identical files.
Exits non-zero if any check fails; the last line reads 'N passed, N failed'.
"""
import argparse
import filecmp
import os
import re
import subprocess
import sys
import tempfile

import numpy as np

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from audiofile import read_any  # noqa: E402
from loudness import loudness  # noqa: E402
import report as loudness_report  # noqa: E402

MUSIC = ["ANCIENT RUINS - NewAge MSCNEW2_33.ogg", "SCI-FI-AMBIENCE_GEN-HDF-20485.ogg",
         "LOST CIVILIZATION - NewAge MSCNEW2_41.ogg", "ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg"]
# effect file -> longest allowed duration in seconds
EFFECTS = {"PopVocal CTE02_09.6.wav": 1.0, "SCI-FI-PASS-BY_GEN-HDF-20746.ogg": 2.0,
           "HUMAN-SCREAM_GEN-HDF-15252.wav": 1.5, "RockImpact CTE02_24.1.wav": 3.0,
           "Electricity_Spark_Activate.ogg": 2.0}
MUSIC_PEAK_LIMIT_DB = -0.5
EFFECT_PEAK_LIMIT_DB = -1.0
LOUDNESS_SPREAD_DB = 1.0
RMS_SPREAD_DB = 2.0
TOTAL_SIZE_LIMIT = 15 * 1024 * 1024


class Report:
    def __init__(self):
        self.passed = 0
        self.failed = 0

    def expect(self, ok, what):
        if ok:
            self.passed += 1
        else:
            self.failed += 1
        print(("  ok    " if ok else "  FAIL  ") + what)
        return ok


def sox_stats(path):
    """Overall figures from `sox FILE -n stats` as a dict of floats, or None if sox cannot read it."""
    run = subprocess.run(["sox", path, "-n", "stats"], capture_output=True, text=True)
    if run.returncode != 0:
        return None
    figures = {}
    for line in run.stderr.splitlines():
        # "Pk lev dB      -1.87     -1.87     -2.24": a label, two or more spaces, then the values.
        found = re.match(r"^([A-Za-z][A-Za-z .-]*?)\s{2,}(\S+)", line)
        if found:
            try:
                figures[found.group(1)] = float(found.group(2))
            except ValueError:
                pass
    return figures


def ogg_is_vorbis(path):
    run = subprocess.run(["ogginfo", path], capture_output=True, text=True)
    return run.returncode == 0 and "type vorbis" in run.stdout


def wav_format_ok(path):
    import wave
    with wave.open(path, "rb") as w:
        return (w.getsampwidth() == 2 and w.getnchannels() in (1, 2)
                and w.getframerate() in (44100, 22050) and w.getcomptype() == "NONE")


def seam_is_smooth(sig):
    """The step from the last sample to the first is no bigger than the track's ordinary steps, and
    neither is the bend (the step compared with the one before it)."""
    step = np.abs(np.diff(sig, axis=1))
    bend = np.abs(np.diff(sig, n=2, axis=1))
    seam_step = np.abs(sig[:, 0] - sig[:, -1])
    seam_bend = np.abs(sig[:, 0] - 2.0 * sig[:, -1] + sig[:, -2])
    return bool(np.all(seam_step <= np.percentile(step, 99.9))
                and np.all(seam_bend <= np.percentile(bend, 99.9)))


def edge_level_db(sig, rate, seconds, at_end):
    m = int(seconds * rate)
    part = sig[:, -m:] if at_end else sig[:, :m]
    return 20.0 * np.log10(np.sqrt(np.mean(part ** 2)) + 1e-12)


def check_common(report, path, name):
    """Decodes, format, clipping and peak; returns (samples, rate, sox figures) or None."""
    if not report.expect(os.path.isfile(path), name + ": exists"):
        return None
    stats = sox_stats(path)
    if not report.expect(stats is not None and "Pk lev dB" in stats, name + ": sox reads it"):
        return None
    if name.endswith(".ogg"):
        report.expect(ogg_is_vorbis(path), name + ": is Ogg Vorbis")
    else:
        report.expect(wav_format_ok(path), name + ": is 16-bit PCM WAV at 44.1 or 22.05 kHz")
    try:
        sig, rate = read_any(path)
    except Exception as err:  # noqa: BLE001 - any decoding failure is the finding
        report.expect(False, name + ": decodes (" + str(err) + ")")
        return None
    report.expect(sig.shape[1] > 0, name + ": decodes to %d samples" % sig.shape[1])
    clipped = int(np.sum(np.abs(sig) >= 32767.0 / 32768.0))
    report.expect(clipped == 0, name + ": no clipped samples (%d)" % clipped)
    return sig, rate, stats


def check_music(report, folder):
    levels = {}
    rms = {}
    for name in MUSIC:
        got = check_common(report, os.path.join(folder, name), name)
        if not got:
            continue
        sig, rate, stats = got
        seconds = sig.shape[1] / rate
        report.expect(sig.shape[0] == 2 and rate == 44100, name + ": stereo at 44.1 kHz")
        report.expect(seconds >= 60.0, name + ": lasts %.1f s (at least 60)" % seconds)
        report.expect(stats["Pk lev dB"] < MUSIC_PEAK_LIMIT_DB,
                      name + ": peak %.2f dBFS (under %.1f)" % (stats["Pk lev dB"], MUSIC_PEAK_LIMIT_DB))
        report.expect(seam_is_smooth(sig), name + ": loop point joins without a click")
        tail = edge_level_db(sig, rate, 0.5, at_end=True)
        head = edge_level_db(sig, rate, 0.5, at_end=False)
        report.expect(tail > -40.0 and head > -40.0,
                      name + ": no fade at the loop point (head %.1f, tail %.1f dBFS)" % (head, tail))
        levels[name] = loudness(sig)
        rms[name] = stats["RMS lev dB"]
        print("        loudness %.2f LUFS-like, RMS %.2f dBFS" % (levels[name], rms[name]))
    if len(levels) == len(MUSIC):
        spread = max(levels.values()) - min(levels.values())
        report.expect(spread <= LOUDNESS_SPREAD_DB, "music: K-weighted loudness within %.1f dB (%.2f)"
                      % (LOUDNESS_SPREAD_DB, spread))
        spread = max(rms.values()) - min(rms.values())
        report.expect(spread <= RMS_SPREAD_DB, "music: RMS within %.1f dB (%.2f)" % (RMS_SPREAD_DB, spread))


def check_effects(report, folder):
    for name, longest in EFFECTS.items():
        got = check_common(report, os.path.join(folder, name), name)
        if not got:
            continue
        sig, rate, stats = got
        seconds = sig.shape[1] / rate
        report.expect(0.1 <= seconds <= longest, name + ": lasts %.2f s (at most %.1f)" % (seconds, longest))
        report.expect(stats["Pk lev dB"] < EFFECT_PEAK_LIMIT_DB,
                      name + ": peak %.2f dBFS (under %.1f)" % (stats["Pk lev dB"], EFFECT_PEAK_LIMIT_DB))
        report.expect(stats["RMS lev dB"] > -40.0, name + ": clearly audible (RMS %.1f dBFS)"
                      % stats["RMS lev dB"])
        edges = np.abs(sig[:, [0, -1]]).max()
        report.expect(edges < 0.01, name + ": starts and ends in silence")


CRY = "HUMAN-SCREAM_GEN-HDF-15252.wav"
CRY_BRIGHT_SHARE = 0.5


def bright_share(sig, rate, above=1000.0):
    """The share of a sound's energy above a frequency."""
    x = sig.mean(axis=0)
    power = np.abs(np.fft.rfft(x)) ** 2
    freqs = np.fft.rfftfreq(len(x), 1.0 / rate)
    return float(power[freqs > above].sum() / max(power.sum(), 1e-20))


def check_cry(report, folder):
    """A cry with most of its energy low reads as a hum: most of it lies above 1 kHz."""
    path = os.path.join(folder, CRY)
    if not os.path.isfile(path):
        return
    sig, rate = read_any(path)
    share = bright_share(sig, rate)
    report.expect(share >= CRY_BRIGHT_SHARE, CRY + ": %.0f%% of its energy above 1 kHz (at least %.0f%%)"
                  % (share * 100, CRY_BRIGHT_SHARE * 100))


def read_report(path):
    """The loudness report as {file: {column: text}}, or None if it is missing."""
    if not os.path.isfile(path):
        return None
    with open(path, encoding="utf-8") as f:
        lines = [line.rstrip("\n").split("\t") for line in f if line.strip()]
    head = lines[0]
    return {cells[0]: dict(zip(head, cells)) for cells in lines[1:]}


def report_figures(row):
    """A file's figures as the kept report gives them, to a tenth."""
    opening = row.get("first 2 s LUFS 200 Hz HP", "-")
    return {"lufs": float(row["LUFS"]), "tp": float(row["dBTP"]), "speaker": float(row["LUFS 200 Hz HP"]),
            "opening": float(opening) if opening != "-" else float("nan")}


def check_loudness(report, folder, from_report=False):
    """Every file measured afresh against its target, and the kept report against the measures. With from_report
    the kept report's figures and verdicts are held to the targets instead of measuring again: for a run beside
    the rebuild check (make test), which measures every file afresh into that report and requires it unchanged."""
    kept = read_report(os.path.join(folder, loudness_report.REPORT_NAME))
    report.expect(kept is not None, loudness_report.REPORT_NAME + ": the loudness report is kept in " + folder)
    for name in loudness_report.TARGETS:
        path = os.path.join(folder, name)
        if not os.path.isfile(path):
            continue
        if from_report:
            row = (kept or {}).get(name)
            if not report.expect(row is not None, name + ": has a row in the loudness report"):
                continue
            figures = report_figures(row)
            found = loudness_report.problems(name, figures)
            if row.get("verdict") != "ok":
                found.append("the report's verdict is " + str(row.get("verdict")))
        else:
            figures = loudness_report.measure(path)
            found = loudness_report.problems(name, figures)
        report.expect(not found, name + ": %.1f LUFS, %.1f dBTP, %.1f LUFS through 200 Hz high-pass%s"
                      % (figures["lufs"], figures["tp"], figures["speaker"],
                         (": " + "; ".join(found)) if found else ""))
        if kept is not None and not from_report:
            row = kept.get(name, {})
            agrees = (row.get("LUFS") == "%.1f" % figures["lufs"] and row.get("dBTP") == "%.1f" % figures["tp"])
            report.expect(agrees, name + ": the loudness report gives %s LUFS, %s dBTP, as measured"
                          % (row.get("LUFS"), row.get("dBTP")))


def check_rebuild(report, folder):
    """Build everything afresh into a temporary folder; each file must match the one in `folder`."""
    builder = os.path.join(os.path.dirname(os.path.abspath(__file__)), "build.py")
    with tempfile.TemporaryDirectory() as tmp:
        subprocess.run([sys.executable, builder, "--out", tmp], check=True, stdout=subprocess.DEVNULL)
        for name in MUSIC + list(EFFECTS):
            fresh = os.path.join(tmp, name)
            kept = os.path.join(folder, name)
            same = (os.path.isfile(fresh) and os.path.isfile(kept)
                    and filecmp.cmp(fresh, kept, shallow=False))
            report.expect(same, name + ": a fresh build gives the same bytes")


def main():
    parser = argparse.ArgumentParser(description="Check the game's sound files.")
    parser.add_argument("--dir", default="assets")
    parser.add_argument("--rebuild", action="store_true",
                        help="also rebuild everything (about a minute) and compare byte for byte")
    parser.add_argument("--figures-from-report", action="store_true",
                        help="hold the kept loudness report to the targets instead of measuring every file again "
                             "(for runs beside a rebuild that measures them into that report)")
    args = parser.parse_args()
    folder = args.dir
    report = Report()
    print("sound check of " + folder)
    check_music(report, folder)
    check_effects(report, folder)
    check_cry(report, folder)
    check_loudness(report, folder, args.figures_from_report)
    if args.rebuild:
        check_rebuild(report, folder)
    total = sum(os.path.getsize(os.path.join(folder, n)) for n in MUSIC + list(EFFECTS)
                if os.path.isfile(os.path.join(folder, n)))
    report.expect(total < TOTAL_SIZE_LIMIT, "all nine files together: %.2f MB (under 15)" % (total / 1048576.0))
    print("sound: %d passed, %d failed" % (report.passed, report.failed))
    return 1 if report.failed else 0


if __name__ == "__main__":
    sys.exit(main())
