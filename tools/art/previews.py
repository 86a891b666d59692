"""previews.py -- the manifest rows of the six level previews of the level selection screen.

Owns the rows of "peektutorial.png", "level2peek.png", "Level3peek.png", "level4peek.png", "level5peek.png",
"level6peek.png" (308 x 225.4 on screen). The pictures themselves are not made here: tools/levels/previews.sh draws
each from its real level file with the game's own renderer (quillon-levelshot), so build.py leaves them alone and
the regeneration check does not compare them.
"""
from registry import rendered

rendered("peektutorial.png", "308x225.4", "preview of level 1, the tutorial: the whole level, drawn from Level1.txt")
rendered("level2peek.png", "308x225.4", "preview of level 2: the whole level, drawn from Level2.txt")
rendered("Level3peek.png", "308x225.4", "preview of level 3: the whole level, drawn from Level3.txt")
rendered("level4peek.png", "308x225.4", "preview of level 4: the whole level, drawn from Level4.txt")
rendered("level5peek.png", "308x225.4", "preview of level 5: the whole level, drawn from Level5.txt")
rendered("level6peek.png", "308x225.4", "preview of level 6: the whole level, drawn from Level6.txt")
