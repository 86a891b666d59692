#!/usr/bin/python3
"""Waits until a window has presented COUNT more frames, or fails after TIMEOUT seconds.

Usage: wait_frames.py WINDOW_ID COUNT TIMEOUT

Every present of the game's software renderer puts the whole frame into the window, which the X server reports as
damaged rectangles (one, or several strips when the picture is sent in pieces); exactly one rectangle of each
present covers the window's top row, and those are counted from the moment this script starts. This tells a test
how many frames the game has shown since: the game samples the keyboard at the start of a frame and reads the X events at its end, so after two presents
a key released before this script started has been seen released by a frame."""
import select
import sys
import time

from Xlib import display
from Xlib.ext import damage


def main():
    window_id = int(sys.argv[1], 0)
    count = int(sys.argv[2])
    timeout = float(sys.argv[3])
    d = display.Display()
    if not d.has_extension("DAMAGE"):
        print("wait_frames: the X server has no DAMAGE extension", file=sys.stderr)
        return 2
    d.damage_query_version()
    window = d.create_resource_object("window", window_id)
    handle = window.damage_create(damage.DamageReportRawRectangles)
    d.sync()
    seen = 0
    deadline = time.monotonic() + timeout
    while seen < count:
        while d.pending_events() == 0:
            left = deadline - time.monotonic()
            if left <= 0:
                print("wait_frames: %d of %d frames in %.0f s" % (seen, count, timeout), file=sys.stderr)
                return 1
            select.select([d], [], [], left)
            d.pending_events()
            break
        while d.pending_events() > 0:
            event = d.next_event()
            if event.type == d.extension_event.DamageNotify and event.area.y == 0:
                seen += 1
    d.damage_destroy(handle)
    d.sync()
    d.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
