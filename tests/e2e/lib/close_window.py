#!/usr/bin/python3
"""Asks a window to close as a window manager would: a WM_DELETE_WINDOW client message."""
import sys

from Xlib import X, display, protocol


def main():
    window_id = int(sys.argv[1], 0)
    d = display.Display()
    window = d.create_resource_object("window", window_id)
    wm_protocols = d.intern_atom("WM_PROTOCOLS")
    wm_delete = d.intern_atom("WM_DELETE_WINDOW")
    event = protocol.event.ClientMessage(
        window=window, client_type=wm_protocols, data=(32, [wm_delete, X.CurrentTime, 0, 0, 0]))
    window.send_event(event, event_mask=X.NoEventMask)
    # A round trip, so that the server has handled the request before this client goes away.
    d.sync()
    d.close()


if __name__ == "__main__":
    main()
