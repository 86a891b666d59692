"""registry.py -- the list of every file the game reads from assets/, and how each picture is made.

Owns: the manifest rows (name, kind, blended, drawn size, description) and the picture makers bound to them.
Read by: build.py (writes the pictures and MANIFEST.tsv), check.py through MANIFEST.tsv.
"""
PICTURES = []  # (name, maker, blended, drawn, what), in the order the makers registered
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


def picture(name, drawn, what, blended=True):
    """Register the decorated function as the maker of one picture; it returns a PIL RGBA image."""
    def wrap(fn):
        PICTURES.append((name, fn, blended, drawn, what))
        return fn
    return wrap


def alias(name, of, drawn, what, blended=True):
    """A second file name for a picture already registered (the game spells some files two ways)."""
    for (n, fn, _b, _d, _w) in PICTURES:
        if n == of:
            PICTURES.append((name, fn, blended, drawn, what))
            return
    raise KeyError(of)


def manifest_lines():
    lines = []
    for (name, _fn, blended, drawn, what) in sorted(PICTURES, key=lambda p: p[0]):
        lines.append("\t".join([name, "image", "yes" if blended else "no", drawn, what]))
    for (name, what) in sorted(SOUNDS):
        lines.append("\t".join([name, "sound", "no", "-", what]))
    return lines
