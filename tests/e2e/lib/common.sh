# common.sh -- helpers for end-to-end tests of the real binary under an X server, with real input events.
# Usage: source it, then `start_game BINARY`; it sets GAME_PID, GAME_LOG and WID.

E2E_OUT="${QUILLON_TEST_OUTPUT:-/tmp/quillon-test-output}/e2e"
mkdir -p "$E2E_OUT"
E2E_LIB="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"

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
  WID=""
  for _ in $(seq 1 100); do
    WID=$(xdotool search --name '^Quillon$' 2>/dev/null | head -n 1 || true)
    [ -n "$WID" ] && break
    kill -0 "$GAME_PID" 2>/dev/null || fail "the game ended before its window appeared"
    sleep 0.1
  done
  [ -n "$WID" ] || fail "no window titled Quillon appeared"
  xdotool windowfocus --sync "$WID" 2>/dev/null || true
}

# Waits until the window's size is WIDTHxHEIGHT (up to 5 s).
wait_size() {
  local want="$1" got=""
  for _ in $(seq 1 50); do
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

screen_size() {
  xdpyinfo | awk '/dimensions:/ && !done {print $2; done=1}'
}

# Holds a key long enough for a polled frame to see it.
press_key() {
  xdotool keydown --window "$WID" "$1"
  sleep 0.15
  xdotool keyup --window "$WID" "$1"
  sleep 0.15
}

# Asks the window to close, as a window manager's close button does. The virtual X server now and then loses a
# message or a connection under load, so the request is repeated, as a person clicks again, until the game ends.
close_window() {
  for _ in 1 2 3; do
    /usr/bin/python3 "$E2E_LIB/close_window.py" "$WID" 2>/dev/null || true
    for _ in $(seq 1 30); do
      kill -0 "$GAME_PID" 2>/dev/null || return 0
      sleep 0.1
    done
  done
}

# Waits for the game to end (up to 10 s) and puts its exit status into GAME_STATUS.
wait_exit() {
  for _ in $(seq 1 100); do
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
