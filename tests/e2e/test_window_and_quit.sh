#!/usr/bin/env bash
# The real game starts full screen, F1 gives the 800 by 600 window centred on the screen and back, and closing the
# window ends the run cleanly after the banner. The close goes to the borderless full-screen window after a round
# trip through the windowed form, the way that has the most window changes behind it.
set -euo pipefail
source "$(dirname "$0")/lib/common.sh"
on_private_server 1920x1080 "$@"
binary="$1"

start_game "$binary"
screen=$(screen_size)
wait_size "$screen"
[ "$(window_origin)" = "0,0" ] || fail "full screen window is not at the screen's corner: $(window_origin)"
screenshot window-fullscreen

toggle_full_screen "799x599"
[ "$(window_origin)" = "$(centred_origin)" ] || fail "the window is at $(window_origin), not centred at $(centred_origin)"
[ "$(window_origin)" = "560,240" ] || fail "on 1920 by 1080 the window belongs at 560,240, not $(window_origin)"
screenshot window-windowed

toggle_full_screen "$screen"
[ "$(window_origin)" = "0,0" ] || fail "back in full screen, the window is not at the corner: $(window_origin)"

toggle_full_screen "799x599"
[ "$(window_origin)" = "560,240" ] || fail "windowed again, the window is at $(window_origin), not 560,240"

toggle_full_screen "$screen"
close_window
wait_exit
[ "$GAME_STATUS" = "0" ] || fail "exit status $GAME_STATUS after closing the window"
grep -q "^Kestrel Runtime version: 3.03$" "$GAME_LOG" || fail "no engine banner"
grep -q "^Graphics: OpenGL$" "$GAME_LOG" || fail "no graphics line"
echo "PASS"
