#!/usr/bin/python3
"""check.py -- checks assets/ against its manifest: every picture there, decodable, alpha where blended.

Run from the repository root:  /usr/bin/python3 tools/art/check.py
Checks: each manifest line is well formed; each listed image exists, decodes, has an alpha channel when
drawn blended; the letter sheet divides into 26 x 3 equal cells; every PNG in assets/ is listed; the
whole of assets/ stays under 40 MB. Sound lines are checked for form only: the sound tool makes and checks
those files. An optional argument names another assets folder (the checker's own tests use it).
Prints one line per problem and a closing "N passed, N failed" line; exits 1 on a failure.
"""
import os
import sys

from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
ASSETS = os.path.join(ROOT, "assets")
if len(sys.argv) > 1:
    ASSETS = os.path.abspath(sys.argv[1])
LIMIT = 40 * 1024 * 1024
FONT_SHEET = "lucida_console_f_tex.png"


def read_manifest(path):
    rows = []
    with open(path, encoding="utf-8") as f:
        for n, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line:
                continue
            rows.append((n, line.split("\t")))
    return rows


def check_row(fields):
    """Problems of one manifest row, as a list of texts (empty when fine)."""
    if len(fields) != 5:
        return ["has %d fields, wants 5" % len(fields)]
    name, kind, blended, drawn, what = fields
    problems = []
    if kind not in ("image", "sound"):
        problems.append("kind '%s' is neither image nor sound" % kind)
    if blended not in ("yes", "no"):
        problems.append("blended '%s' is neither yes nor no" % blended)
    if not what.strip():
        problems.append("says nothing of what it is")
    if kind == "sound":
        if drawn != "-":
            problems.append("a sound has drawn size '%s', wants -" % drawn)
        return problems
    try:
        w, h = (float(v) for v in drawn.split("x"))
        if w <= 0 or h <= 0:
            raise ValueError
    except ValueError:
        problems.append("drawn size '%s' is not WxH" % drawn)
    path = os.path.join(ASSETS, name)
    if not os.path.isfile(path):
        return problems + ["is missing"]
    try:
        with Image.open(path) as img:
            img.load()
            mode, size = img.mode, img.size
            has_alpha = mode in ("RGBA", "LA") or (mode == "P" and "transparency" in img.info)
    except Exception as e:  # any decoder failure is a finding, not a crash
        return problems + ["does not decode: %s" % e]
    if blended == "yes" and not has_alpha:
        problems.append("is drawn blended but has no alpha channel (mode %s)" % mode)
    if name == FONT_SHEET and (size[0] % 26 or size[1] % 3):
        problems.append("is %dx%d, which does not divide into 26 x 3 cells" % size)
    return problems


def main():
    manifest = os.path.join(ASSETS, "MANIFEST.tsv")
    passed, failed = 0, 0

    def report(ok, text):
        nonlocal passed, failed
        if ok:
            passed += 1
        else:
            failed += 1
            print("FAIL: " + text)

    if not os.path.isfile(manifest):
        print("FAIL: assets/MANIFEST.tsv is missing")
        print("0 passed, 1 failed")
        return 1
    rows = read_manifest(manifest)
    listed = set()
    for n, fields in rows:
        problems = check_row(fields)
        label = fields[0] if fields else "line %d" % n
        report(not problems, "%s (line %d): %s" % (label, n, "; ".join(problems)))
        listed.add(fields[0])
    report(FONT_SHEET in listed, "the letter sheet %s is not in the manifest" % FONT_SHEET)
    unlisted = sorted(f for f in os.listdir(ASSETS) if f.endswith(".png") and f not in listed)
    report(not unlisted, "pictures in assets/ but not in the manifest: %s" % ", ".join(unlisted))
    total = sum(os.path.getsize(os.path.join(ASSETS, f)) for f in os.listdir(ASSETS)
                if os.path.isfile(os.path.join(ASSETS, f)))
    report(total < LIMIT, "assets/ holds %.1f MB, the limit is 40 MB" % (total / 1048576.0))
    print("art check: %d manifest lines, assets/ %.1f MB" % (len(rows), total / 1048576.0))
    print("%d passed, %d failed" % (passed, failed))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
