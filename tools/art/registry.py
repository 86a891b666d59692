"""registry.py -- the list of every file the game reads from assets/, and how each picture is made.

Owns: the manifest rows and the picture makers bound to them. A row has seven tab-separated fields:
  name, kind (image or sound), blended (yes: every mesh that shows it blends; no: some mesh draws it with
  blending off), drawn (the size of every mesh it is shown on, in units at the scale it is drawn, as WxH
  separated by commas; the letter sheet gives one cell), what it is, clear ground, aspect note.
  Clear ground: "-" for a picture only ever drawn blended (its clear pixels never show), "none" for one
  drawn unblended that must be opaque edge to edge, or "#rrggbb": the colour of the ground it is drawn on
  unblended, which its clear pixels carry and its soft edges are mixed with, so it looks blended there.
  Aspect note: "-", or why the picture's aspect may differ from a mesh it is shown on.
Read by: build.py (writes the pictures and MANIFEST.tsv), check.py through MANIFEST.tsv.
"""
PICTURES = []  # (name, maker, blended, drawn, what, clear, note), in the order the makers registered
SOUNDS = [
    ("ANCIENT RUINS - NewAge MSCNEW2_33.ogg", "menu and level selection music"),
    ("SCI-FI-AMBIENCE_GEN-HDF-20485.ogg", "level music"),
    ("LOST CIVILIZATION - NewAge MSCNEW2_41.ogg", "credits music"),
    ("ULTIMATE CHALLENGE - Corporate MSCSPR1_61.ogg", "boulder chase music"),
    ("PopVocal CTE02_09.6.wav", "jump effect"),
    ("SCI-FI-PASS-BY_GEN-HDF-20746.ogg", "gravity flip effect"),
    ("HUMAN-SCREAM_GEN-HDF-15252.wav", "hit effect"),
    ("RockImpact CTE02_24.1.wav", "drop-wall landing effect"),
    ("Electricity_Spark_Activate.ogg", "battery pickup effect"),
]


def picture(name, drawn, what, blended=True, clear="-", note="-"):
    """Register the decorated function as the maker of one picture; it returns a PIL RGBA image.
    A picture drawn unblended anywhere (blended=False) names its clear ground: "none" or "#rrggbb"."""
    if blended != (clear == "-"):
        raise ValueError("%s: a picture drawn unblended names its clear ground, a blended one does not" % name)
    def wrap(fn):
        PICTURES.append((name, fn, blended, drawn, what, clear, note))
        return fn
    return wrap


def rendered(name, drawn, what):
    """A picture made from the level files by tools/levels/previews.sh, not by a maker here: it has a manifest
    row, and build.py neither writes it nor puts it on the contact sheet."""
    PICTURES.append((name, None, True, drawn, what, "-", "-"))


def rendered_names():
    return sorted(p[0] for p in PICTURES if p[1] is None)


def alias(name, of, drawn, what, blended=True, clear="-", note="-"):
    """A second file name for a picture already registered (the game spells some files two ways)."""
    for p in PICTURES:
        if p[0] == of:
            PICTURES.append((name, p[1], blended, drawn, what, clear, note))
            return
    raise KeyError(of)


def clear_rgb(clear):
    """The colour a clear ground names, or None for "-" and "none"."""
    if not clear.startswith("#"):
        return None
    return tuple(int(clear[i:i + 2], 16) for i in (1, 3, 5))


def manifest_lines():
    lines = []
    for (name, _fn, blended, drawn, what, clear, note) in sorted(PICTURES, key=lambda p: p[0]):
        lines.append("\t".join([name, "image", "yes" if blended else "no", drawn, what, clear, note]))
    for (name, what) in sorted(SOUNDS):
        lines.append("\t".join([name, "sound", "no", "-", what, "-", "-"]))
    return lines
