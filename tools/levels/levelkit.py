"""levelkit.py -- building blocks for the authored level files: floors, ceilings, wall stacks, spikes.

A level is a list of (kind, x, y) records; write() stores it in the level format, three lines per object.
Floors and ceilings are runs of long platforms (150 wide) closed by a short one (100 wide) where the run
does not divide evenly. The positions are integers, as the format stores them.
"""

WALL, PLATFORM, LONG, MOVING = 2, 3, 4, 5
SPIKE_UP, SPIKE_DOWN, CHARACTER = 6, 7, 8
EXIT, ZOOM, SPIKES_UP, SPIKES_DOWN = 10, 12, 27, 28
BATTERY, DROP_WALL = 32, 33


class Level:
    def __init__(self):
        self.objects = []

    def add(self, kind, x, y):
        self.objects.append((kind, int(round(x)), int(round(y))))

    def run(self, x0, x1, y):
        """Platforms edge to edge from x0 to x1, centred on y (top at y + 10)."""
        x = x0
        while x1 - x >= 150:
            self.add(LONG, x + 75, y)
            x += 150
        while x1 - x >= 100:
            self.add(PLATFORM, x + 50, y)
            x += 100
        if x1 - x > 0:
            # The last short platform overlaps the run rather than leave a gap.
            self.add(PLATFORM, x1 - 50, y)

    def walls(self, x, top, bottom):
        """A stack of walls (100 high each) at x hanging from top down to bottom or just below it."""
        y = top
        while y > bottom:
            self.add(WALL, x, y - 50)
            y -= 100

    def spike_up(self, x, floor_top):
        self.add(SPIKE_UP, x, floor_top + 11.5)

    def spike_down(self, x, ceiling_bottom):
        self.add(SPIKE_DOWN, x, ceiling_bottom - 11.5)

    def spikes_up(self, x, floor_top):
        """A row of eleven spikes, 121 wide, standing on floor_top."""
        self.add(SPIKES_UP, x, floor_top + 11.5)

    def spikes_down(self, x, ceiling_bottom):
        self.add(SPIKES_DOWN, x, ceiling_bottom - 11.5)

    def character(self, x, floor_top):
        self.add(CHARACTER, x, floor_top + 25)

    def exit(self, x, floor_top):
        self.add(EXIT, x, floor_top + 27.5)

    def write(self, path):
        with open(path, "w", newline="\n") as out:
            for kind, x, y in self.objects:
                out.write("%d\n%d\n%d\n" % (kind, x, y))
