#!/usr/bin/env bash
# Under a window manager (openbox, on a private virtual X server): full screen covers the screen from its corner,
# also when it comes back from the window, and the manager's close request ends the run.
set -euo pipefail
source "$(dirname "$0")/lib/common.sh"
on_private_server 1600x900 "$@"
binary="$1"

openbox >/dev/null 2>&1 &
WM_PID=$!
trap 'stop_game; kill $WM_PID 2>/dev/null || true' EXIT
sleep 0.5

start_game "$binary"
wait_size "1600x900"
[ "$(window_origin)" = "0,0" ] || fail "full screen starts at $(window_origin)"

toggle_full_screen "799x599"
# Centred on the screen; the manager's frame moves the client area by its border.
IFS=, read -r x y <<<"$(window_origin)"
[ $((x - 400)) -ge 0 ] && [ $((x - 400)) -le 30 ] && [ $((y - 150)) -ge 0 ] && [ $((y - 150)) -le 40 ] ||
  fail "the window is not centred: $x,$y"

toggle_full_screen "1600x900"
sleep 0.3
[ "$(window_origin)" = "0,0" ] || fail "full screen after the window starts at $(window_origin)"
screenshot window-manager-fullscreen

wmctrl -c Quillon
wait_exit
[ "$GAME_STATUS" = "0" ] || fail "exit status $GAME_STATUS after the window manager closed the window"
echo "PASS"
