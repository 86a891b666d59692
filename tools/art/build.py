#!/usr/bin/python3
"""build.py -- makes every picture the game reads, its manifest and the contact sheet.

Run from the repository root:  /usr/bin/python3 tools/art/build.py
Writes assets/*.png, assets/MANIFEST.tsv and docs/art/contact-sheet.png. Every picture comes from fixed
seeds and is written without metadata, so running it twice changes no file.
"""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import canvas as C  # noqa: E402
import contact  # noqa: E402
import registry  # noqa: E402

# Importing a drawing module registers its pictures.
import world  # noqa: E402,F401
import sprites  # noqa: E402,F401
import items  # noqa: E402,F401
import buttons  # noqa: E402,F401
import hud  # noqa: E402,F401
import screens  # noqa: E402,F401
import levelselect  # noqa: E402,F401
import splash  # noqa: E402,F401
import credits  # noqa: E402,F401
import previews  # noqa: E402,F401
import fontsheet  # noqa: E402,F401

ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
ASSETS = os.path.join(ROOT, "assets")
SHEET = os.path.join(ROOT, "docs", "art", "contact-sheet.png")


def write_if_changed(path, data):
    """Leave a file untouched when its bytes would not change, so its time stamp stays too."""
    if os.path.exists(path):
        with open(path, "rb") as f:
            if f.read() == data:
                return False
    with open(path, "wb") as f:
        f.write(data)
    return True


def main(argv):
    if argv[1:] == ["--rendered-elsewhere"]:
        # The pictures drawn by other tools, one a line, for the regeneration check to leave out.
        print("\n".join(registry.rendered_names()))
        return
    only = set(argv[1:])
    os.makedirs(ASSETS, exist_ok=True)
    os.makedirs(os.path.dirname(SHEET), exist_ok=True)
    names = [p[0] for p in registry.PICTURES]
    dupes = {n for n in names if names.count(n) > 1}
    if dupes:
        sys.exit("build.py: pictures registered twice: %s" % ", ".join(sorted(dupes)))
    made = []
    changed = 0
    cache = {}
    for (name, maker, _blended, _drawn, _what, clear, _note) in registry.PICTURES:
        if only and name not in only:
            continue
        if maker is None:
            continue
        key = (maker, clear)
        if key not in cache:
            cache[key] = C.finish(maker(), registry.clear_rgb(clear))
        img = cache[key]
        changed += write_if_changed(os.path.join(ASSETS, name), C.png_bytes(img, opaque=(clear == "none")))
        made.append((name, img, clear))
    if not only:
        manifest = "\n".join(registry.manifest_lines()) + "\n"
        changed += write_if_changed(os.path.join(ASSETS, "MANIFEST.tsv"), manifest.encode("utf-8"))
        made.sort(key=lambda p: p[0].lower())
        changed += write_if_changed(SHEET, C.png_bytes(contact.contact_sheet(made)))
    print("build.py: %d pictures, %d files changed" % (len(made), changed))


if __name__ == "__main__":
    main(sys.argv)
