#!/usr/bin/python3
"""check.py -- checks assets/ against its manifest: every picture there, decodable, alpha where blended.

Run from the repository root:  /usr/bin/python3 tools/art/check.py
Checks: each manifest line is well formed; each listed image exists, decodes, has an alpha channel when
drawn blended; a picture drawn unblended carries the clear ground its line names (opaque edge to edge for
"none", every clear pixel of the named colour for "#rrggbb"); each picture's aspect is within 5% of the
aspect of every mesh it is shown on, unless its line notes why not; the letter sheet divides into 26 x 3
equal cells; every PNG in assets/ is listed; the whole of assets/ stays under 40 MB. Sound lines are checked for form only: the sound tool makes and checks
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
FONT_GRID = (26, 3)
ASPECT_TOLERANCE = 0.05
FIELDS = 7


def read_manifest(path):
    rows = []
    with open(path, encoding="utf-8") as f:
        for n, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line:
                continue
            rows.append((n, line.split("\t")))
    return rows


def parse_sizes(drawn):
    """The mesh sizes of a drawn field, "WxH[,WxH...]", as a list of (w, h); ValueError if malformed."""
    sizes = []
    for part in drawn.split(","):
        w, h = (float(v) for v in part.split("x"))
        if w <= 0 or h <= 0:
            raise ValueError(part)
        sizes.append((w, h))
    return sizes


def aspect_problems(name, size, meshes, note):
    """A picture looks right only at its own aspect: each mesh it is shown on must match it within 5%."""
    w, h = size
    if name == FONT_SHEET:  # drawn one cell at a time
        w, h = w / FONT_GRID[0], h / FONT_GRID[1]
    problems = []
    for (mw, mh) in meshes:
        off = (w / h) / (mw / mh) - 1.0
        if abs(off) > ASPECT_TOLERANCE and note == "-":
            problems.append("is %dx%d (aspect %.3f) but shown on a %gx%g mesh (aspect %.3f): %+.0f%% stretched, "
                            "and no note says why" % (size[0], size[1], w / h, mw, mh, mw / mh, off * 100))
    return problems


def clear_ground_problems(img, clear):
    """A picture drawn with blending off shows its clear pixels' colour: it must be the one declared."""
    import numpy as np
    arr = np.asarray(img.convert("RGBA"))
    clear_px = arr[..., 3] == 0
    count = int(clear_px.sum())
    if clear == "none":
        return [] if count == 0 else ["is drawn unblended and should be opaque, but has %d clear pixels" % count]
    want = np.array([int(clear[i:i + 2], 16) for i in (1, 3, 5)])
    wrong = clear_px & np.any(arr[..., :3] != want[None, None, :], axis=2)
    if wrong.any():
        ys, xs = np.nonzero(wrong)
        got = tuple(int(v) for v in arr[ys[0], xs[0], :3])
        return ["is drawn unblended on %s, but %d of its %d clear pixels are another colour (first at %d,%d: "
                "#%02x%02x%02x)" % (clear, int(wrong.sum()), count, xs[0], ys[0], got[0], got[1], got[2])]
    return []


def check_row(fields):
    """Problems of one manifest row, as a list of texts (empty when fine)."""
    if len(fields) != FIELDS:
        return ["has %d fields, wants %d" % (len(fields), FIELDS)]
    name, kind, blended, drawn, what, clear, note = fields
    problems = []
    if kind not in ("image", "sound"):
        problems.append("kind '%s' is neither image nor sound" % kind)
    if blended not in ("yes", "no"):
        problems.append("blended '%s' is neither yes nor no" % blended)
    if not what.strip():
        problems.append("says nothing of what it is")
    if not note.strip():
        problems.append("aspect note is empty, wants - or a reason")
    if kind == "sound":
        if drawn != "-" or clear != "-":
            problems.append("a sound has drawn size '%s' and clear ground '%s', wants - and -" % (drawn, clear))
        return problems
    if blended == "yes" and clear != "-":
        problems.append("is only drawn blended, so its clear ground is '-', not '%s'" % clear)
    if blended == "no" and not (clear == "none" or (len(clear) == 7 and clear[0] == "#")):
        problems.append("is drawn unblended, so its line names its clear ground (none or #rrggbb), not '%s'" % clear)
    meshes = []
    try:
        meshes = parse_sizes(drawn)
    except ValueError:
        problems.append("drawn size '%s' is not WxH[,WxH...]" % drawn)
    path = os.path.join(ASSETS, name)
    if not os.path.isfile(path):
        return problems + ["is missing"]
    try:
        with Image.open(path) as img:
            img.load()
            mode, size = img.mode, img.size
            has_alpha = mode in ("RGBA", "LA") or (mode == "P" and "transparency" in img.info)
            if blended == "no" and (clear == "none" or clear.startswith("#")):
                problems += clear_ground_problems(img, clear)
    except Exception as e:  # any decoder failure is a finding, not a crash
        return problems + ["does not decode: %s" % e]
    problems += aspect_problems(name, size, meshes, note)
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
