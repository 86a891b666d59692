#!/usr/bin/env bash
# The real game starts full screen, F1 gives the 800 by 600 window and back, and closing the window ends the run
# cleanly after the banner.
set -euo pipefail
source "$(dirname "$0")/lib/common.sh"
binary="$1"

start_game "$binary"
screen=$(screen_size)
wait_size "$screen"
[ "$(window_origin)" = "0,0" ] || fail "full screen window is not at the screen's corner: $(window_origin)"
screenshot window-fullscreen

press_key F1
wait_size "799x599"
screenshot window-windowed

press_key F1
wait_size "$screen"

close_window
wait_exit
[ "$GAME_STATUS" = "0" ] || fail "exit status $GAME_STATUS after closing the window"
grep -q "^Kestrel Runtime version: 3.03$" "$GAME_LOG" || fail "no engine banner"
grep -q "^Graphics: OpenGL$" "$GAME_LOG" || fail "no graphics line"
echo "PASS"
