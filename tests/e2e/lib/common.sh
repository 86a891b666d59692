# common.sh -- helpers for end-to-end tests of the real binary under an X server, with real input events.
# Usage: source it, call `on_private_server WIDTHxHEIGHT "$@"` first, then `start_game BINARY`; it sets GAME_PID,
# GAME_LOG and WID.

E2E_OUT="${QUILLON_TEST_OUTPUT:-/tmp/quillon-test-output}/e2e"
mkdir -p "$E2E_OUT"
E2E_LIB="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

# Runs the calling script again on a private virtual X server of that size, unless it already runs on one: real key
# presses go to whatever window has the focus, so a test that sends them shares its server with no other test.
on_private_server() {
  local size="$1"
  shift
  if [ -z "${QUILLON_E2E_SERVER:-}" ]; then
    QUILLON_E2E_SERVER="$size" exec "$E2E_LIB/with-xvfb.sh" "$size" bash "$0" "$@"
  fi
}

fail() {
  echo "FAIL: $*" >&2
  [ -n "${GAME_LOG:-}" ] && { echo "--- game output ---" >&2; cat "$GAME_LOG" >&2; }
  stop_game
  exit 1
}

stop_game() {
  if [ -n "${GAME_PID:-}" ] && kill -0 "$GAME_PID" 2>/dev/null; then
    kill "$GAME_PID" 2>/dev/null || true
    sleep 0.5
    kill -9 "$GAME_PID" 2>/dev/null || true
  fi
}

start_game() {
  local binary="$1"
  GAME_LOG="$E2E_OUT/$(basename "$0" .sh).log"
  "$binary" >"$GAME_LOG" 2>&1 </dev/null &
  GAME_PID=$!
  trap stop_game EXIT
  wait_window 60 "the game"
  focus_game
}

# Waits up to SECONDS for the window titled Quillon and puts its id into WID; fails if GAME_PID (named WHAT in the
# message) ends first.
wait_window() {
  local seconds="$1" what="$2"
  WID=""
  for _ in $(seq 1 $((seconds * 10))); do
    WID=$(xdotool search --name '^Quillon$' 2>/dev/null | head -n 1 || true)
    [ -n "$WID" ] && return 0
    kill -0 "$GAME_PID" 2>/dev/null || fail "$what ended before its window appeared"
    sleep 0.1
  done
  fail "no window titled Quillon appeared"
}

# Waits until the window's size is WIDTHxHEIGHT. The game draws every frame in software; on a busy machine a frame
# of the whole screen can take a second or more, so every wait here allows a minute.
wait_size() {
  local want="$1" got=""
  for _ in $(seq 1 600); do
    got=$(window_size)
    [ "$got" = "$want" ] && return 0
    sleep 0.1
  done
  fail "window size is $got, expected $want"
}

window_size() {
  xwininfo -id "$WID" | awk '/Width:/ {w=$2} /Height:/ {h=$2} END {print w "x" h}'
}

window_origin() {
  xwininfo -id "$WID" | awk '/Absolute upper-left X:/ {x=$4} /Absolute upper-left Y:/ {y=$4} END {print x "," y}'
}

# Where the window's client area belongs when it is not full screen: centred on the screen by the logical size of
# 800 by 600 (the client area itself is 799 by 599).
centred_origin() {
  local width height
  IFS=x read -r width height <<<"$(screen_size)"
  echo "$((width / 2 - 400)),$((height / 2 - 300))"
}

screen_size() {
  xdpyinfo | awk '/dimensions:/ && !done {print $2; done=1}'
}

# Gives the game's window the keyboard: through the window manager when one runs, directly otherwise.
focus_game() {
  xdotool windowactivate --sync "$WID" >/dev/null 2>&1 || xdotool windowfocus --sync "$WID" >/dev/null 2>&1 || true
}

# Presses F1 and holds it until the window has the size that F1 gives (the game samples keys once a frame, and
# a press shorter than a slow frame would never be seen; holding F1 longer toggles nothing more). After the release
# it waits for two frames, so that a frame has seen F1 up before the next press: a release and a press that fall
# between the same two frames are no press at all for the game.
toggle_full_screen() {
  local want="$1"
  focus_game
  xdotool keydown F1
  wait_size "$want"
  xdotool keyup F1
  wait_frames 2
}

# Waits until the game has presented COUNT more frames (a minute at most: see wait_size).
wait_frames() {
  /usr/bin/python3 "$E2E_LIB/wait_frames.py" "$WID" "$1" 60 || fail "the game did not show $1 more frames"
}

# Asks the window to close, as a window manager's close button does: one request, and a failure to send it fails the
# test.
close_window() {
  /usr/bin/python3 "$E2E_LIB/close_window.py" "$WID" || fail "the close request could not be sent"
}

# Waits for the game to end (up to a minute: see wait_size) and puts its exit status into GAME_STATUS.
wait_exit() {
  for _ in $(seq 1 600); do
    kill -0 "$GAME_PID" 2>/dev/null || break
    sleep 0.1
  done
  kill -0 "$GAME_PID" 2>/dev/null && fail "the game did not end"
  GAME_STATUS=0
  wait "$GAME_PID" || GAME_STATUS=$?
  GAME_PID=""
}

screenshot() {
  /usr/bin/import -window root "$E2E_OUT/$1.png"
}
