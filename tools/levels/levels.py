"""levels.py -- the six authored levels, each adding one idea to the one before.

    /usr/bin/python3 tools/levels/levels.py assets/

writes Level1.txt to Level6.txt. docs/levels.md tells what each teaches; tests/replays/ holds the scripts that
win and lose them. Positions the level states rely on (the first level's tutorial rectangles and rising wall,
the fourth level's platform limits, the fifth's rectangle, the last level's arming corner and catch point) are
named where they are used.
"""
import os
import sys

from levelkit import Level, BATTERY, DROP_WALL, ZOOM

FLOOR = -520      # floor platforms' centre: their top is at -510, the lowest ground of a level
FLOOR_TOP = FLOOR + 10
CEIL = -250       # ceiling platforms' centre: a character hanging under them stands at -285
CEIL_BOTTOM = CEIL - 10


def bounds(lv, top=CEIL_BOTTOM):
    """Walls at both ends of the camera's range, so that nobody walks out of the tomb."""
    lv.walls(-1545, top, FLOOR_TOP - 40)
    lv.walls(1545, top, FLOOR_TOP - 40)


def level1():
    """The tutorial: walk, jump a spike, the door that rises, the first flip over a barrier, the battery."""
    lv = Level()
    lv.character(-1400, FLOOR_TOP)
    lv.run(-1560, 1560, FLOOR)
    bounds(lv, 0)
    # First box: walk and jump. One low spike to hop.
    lv.spike_up(-1230, FLOOR_TOP)
    # The rising wall stands at -1014 (the level makes it) on a sill under the floor; standing at it lifts it.
    lv.add(3, -1014, -555)
    # Second box: the flip. A barrier from the floor to just under a ceiling that runs from the third box past it.
    lv.run(-1060, -300, CEIL)
    lv.walls(-560, CEIL_BOTTOM - 70, FLOOR_TOP - 20)
    # The way on: two spikes, then a high ceiling that carries the battery (the level puts it at 530, -150) over
    # a second barrier.
    lv.spike_up(-100, FLOOR_TOP)
    lv.spike_up(150, FLOOR_TOP)
    lv.run(380, 950, -115)
    lv.walls(760, -125 - 70, FLOOR_TOP - 20)
    lv.exit(1450, FLOOR_TOP)
    return lv


def level2():
    """Spikes: single spikes to hop, a field of spike rows that only the ceiling passes, spikes hanging from the
    ceiling that send the character down again, and a low ceiling with spikes where a jump hurts."""
    lv = Level()
    lv.character(-1400, FLOOR_TOP)
    lv.run(-1560, 1560, FLOOR)
    bounds(lv)
    # Two single spikes to hop.
    lv.spike_up(-1200, FLOOR_TOP)
    lv.spike_up(-1000, FLOOR_TOP)
    # A field of three spike rows under a ceiling, closed by a barrier that only a hanging character passes.
    lv.run(-900, 100, CEIL)
    for x in (-639.5, -518.5, -397.5):
        lv.spikes_up(x, FLOOR_TOP)
    lv.walls(-250, CEIL_BOTTOM - 70, FLOOR_TOP - 20)
    lv.add(BATTERY, -450, CEIL_BOTTOM - 25)
    # Spikes hanging at the ceiling's end: flip down before them.
    lv.spikes_down(0, CEIL_BOTTOM)
    # A low ceiling with hanging spikes: walk under it, do not jump.
    lv.run(150, 450, -390)
    lv.spikes_down(240.5, -400)
    lv.spikes_down(361.5, -400)
    lv.add(ZOOM, 300, FLOOR_TOP + 20)
    # Two more spikes, then the exit.
    lv.spike_up(600, FLOOR_TOP)
    lv.spike_up(850, FLOOR_TOP)
    # A high gallery over the route fills the top of the view.
    lv.run(-1300, -500, 300)
    lv.run(300, 1300, 300)
    lv.exit(1450, FLOOR_TOP)
    return lv


def standing_barrier(lv, x):
    """Walls from the floor to 70 under the ceiling: a walking character is stopped, a hanging one passes over."""
    lv.walls(x, CEIL_BOTTOM - 70, FLOOR_TOP - 20)


def hanging_barrier(lv, x):
    """Walls from the ceiling to 70 above the floor: a hanging character is stopped, a walking one passes under."""
    lv.walls(x, CEIL_BOTTOM + 20, FLOOR_TOP + 70)


def level3():
    """Flips between ceiling and floor: barriers stand on the floor and hang from the ceiling in turn, spike rows
    wait on the side that is wrong, and the exit hangs from the ceiling at the end."""
    lv = Level()
    lv.character(-1400, FLOOR_TOP)
    lv.run(-1560, 1560, FLOOR)
    lv.run(-1560, 1560, CEIL)
    bounds(lv)
    lv.spike_up(-1250, FLOOR_TOP)
    # Up over the first barrier; the floor beyond it is spiked.
    standing_barrier(lv, -850)
    lv.spikes_up(-780.5, FLOOR_TOP)
    lv.spikes_up(-659.5, FLOOR_TOP)
    lv.add(BATTERY, -750, CEIL_BOTTOM - 25)
    # Down under the second; a character that flips up too soon meets the spikes on the ceiling.
    hanging_barrier(lv, -300)
    lv.spikes_down(-180, CEIL_BOTTOM)
    lv.add(ZOOM, -100, FLOOR_TOP + 20)
    # Up over the third; down before the spikes of the ceiling and the fourth barrier.
    standing_barrier(lv, 400)
    lv.spikes_up(480.5, FLOOR_TOP)
    lv.spikes_down(760.5, CEIL_BOTTOM)
    hanging_barrier(lv, 900)
    # Up over the last barrier to the exit, which hangs from the ceiling.
    lv.spikes_up(1160.5, FLOOR_TOP)
    standing_barrier(lv, 1250)
    lv.spikes_up(1360.5, FLOOR_TOP)
    lv.spikes_up(1481.5, FLOOR_TOP)
    lv.add(10, 1450, CEIL_BOTTOM - 27.5)
    # Galleries over the tomb fill the top of the view.
    lv.run(-1300, -500, 300)
    lv.run(0, 1300, 300)
    lv.walls(-250, 500, 310)
    lv.walls(650, 500, 310)
    return lv


def level4():
    """Moving platforms and the drop wall. Up over a barrier and along the ceiling, wait there and drop onto the
    first moving platform as it passes (the flip holds the platforms while it lasts), ride it over a pit of spikes
    and jump off at its turn, over the drop wall that stands beyond it; then under the third platform and a
    hanging barrier to the exit. The level makes the moving platforms
    (x -350..109 and 715..980 at y -400, 101..560 at y -200, the lift at x 1415) and the drop wall (x 232)."""
    lv = Level()
    lv.character(-1400, FLOOR_TOP)
    lv.run(-1560, 1560, FLOOR)
    bounds(lv)
    lv.spike_up(-1250, FLOOR_TOP)
    # Up over the barrier and along the ceiling over a pit of spikes, to drop onto the first moving platform.
    lv.run(-1560, 0, CEIL)
    standing_barrier(lv, -850)
    lv.walls(-20, CEIL_BOTTOM + 30, CEIL_BOTTOM - 70)
    lv.add(BATTERY, -600, CEIL_BOTTOM - 25)
    x = -780.5
    while x < 130:
        lv.spikes_up(x, FLOOR_TOP)
        x += 121
    # The drop wall falls to the floor at x 232, just past the platform's far end: a jump from the platform at
    # its turn carries the character over it. When gravity turns over the wall rises to the gallery above; the
    # ceiling beyond it leaves its way free.
    lv.run(250, 1560, CEIL)
    lv.add(ZOOM, 600, FLOOR_TOP + 20)
    # Under the third moving platform; a spike to hop and the hanging barrier before the exit.
    lv.spike_up(1000, FLOOR_TOP)
    hanging_barrier(lv, 1150)
    lv.exit(1280, FLOOR_TOP)
    # Galleries over the tomb fill the top of the view; the drop wall rests under the second one when inverted.
    lv.run(-1300, -500, 300)
    lv.run(0, 1300, 300)
    lv.walls(-250, 500, 310)
    lv.walls(650, 500, 310)
    return lv


def level5():
    """The platform that walks a rectangle (the level makes it: x -200..318 by y -320..-30, never held by a flip).
    Up and down over a barrier, then up to a short ceiling over the rectangle, wait there and drop onto the
    platform on its low leg, ride it to the top corner and jump off onto the high ledge with the exit."""
    lv = Level()
    lv.character(-1400, FLOOR_TOP)
    lv.run(-1560, 1560, FLOOR)
    bounds(lv)
    lv.spike_up(-1250, FLOOR_TOP)
    # Up over the barrier, down before the ceiling's end.
    lv.run(-1560, -500, CEIL)
    standing_barrier(lv, -850)
    lv.walls(-510, CEIL_BOTTOM + 30, CEIL_BOTTOM - 70)
    lv.spikes_up(-780.5, FLOOR_TOP)
    lv.spikes_up(-659.5, FLOOR_TOP)
    lv.add(BATTERY, -700, CEIL_BOTTOM - 25)
    # The short ceiling inside the rectangle, closed by short walls at both ends.
    lv.run(-100, 250, -100)
    lv.walls(-100, -90, -190)
    lv.walls(250, -90, -190)
    # The high ledge beyond the rectangle's top corner, with the exit; spikes on the floor under it.
    lv.run(380, 1200, -30)
    lv.walls(1200, 70, -20)
    lv.exit(900, -20)
    x = 460.5
    while x < 1500:
        lv.spikes_up(x, FLOOR_TOP)
        x += 121
    lv.add(ZOOM, 700, 5)
    # Galleries over the tomb fill the top of the view.
    lv.run(-1300, -500, 300)
    lv.run(0, 1300, 300)
    return lv


def level6():
    """The boulder chase. The level makes the boulder (253 by 149 half-size) at (-1750, -380), armed as soon as the
    character is at x < -1114 and y < -390, which is where it starts: the boulder then rolls right at 95 a second
    to x 1058, and a character it catches is put back on the platform at (-1469, -183) with one heart less. The
    way runs over spikes and up and down over a barrier, each costing time the boulder gains back, to the exit
    beyond the boulder's stopping point."""
    lv = Level()
    # The character starts on the catch point's platform, above the boulder's start (its top is at -231), out of
    # the arming corner: the chase begins when it steps down to the floor.
    lv.add(4, -1469, -218)
    lv.character(-1469, -208)
    lv.run(-1560, 1560, FLOOR)
    bounds(lv)
    # Up over the barrier, down before the ceiling's end.
    lv.run(-1250, -350, CEIL)
    standing_barrier(lv, -850)
    lv.walls(-360, CEIL_BOTTOM + 30, CEIL_BOTTOM - 70)
    lv.spikes_up(-780.5, FLOOR_TOP)
    lv.spikes_up(-659.5, FLOOR_TOP)
    lv.add(BATTERY, -700, CEIL_BOTTOM - 25)
    # The run to the exit, past the boulder's stopping point (its front stops at x 1311).
    lv.spike_up(200, FLOOR_TOP)
    lv.spike_up(600, FLOOR_TOP)
    lv.spike_up(1000, FLOOR_TOP)
    lv.exit(1450, FLOOR_TOP)
    # Galleries over the tomb fill the top of the view.
    lv.run(-1300, -500, 300)
    lv.run(0, 1300, 300)
    return lv


LEVELS = [level1, level2, level3, level4, level5, level6]


def credits():
    """The credits' walk: a floor of platforms under the four pictures of names, the character at its left end,
    long enough to carry it over x = 1490, where the closing fade begins."""
    lv = Level()
    lv.add(8, -1400, -245)
    lv.run(-1560, 1700, -280)
    return lv


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else "assets"
    for i, make in enumerate(LEVELS):
        make().write(os.path.join(folder, "Level%d.txt" % (i + 1)))
    credits().write(os.path.join(folder, "Credits.txt"))


if __name__ == "__main__":
    main()
