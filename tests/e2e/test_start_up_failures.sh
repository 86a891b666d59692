#!/usr/bin/env bash
# A start that cannot open its window says why in one line, in the library's own words, and ends with status 1: on a
# display that does not exist, and with no display at all. Never a crash, never silence.
set -euo pipefail
source "$(dirname "$0")/lib/common.sh"
binary="$1"

# Runs the game with the given environment changes; sets OUT (standard output), ERR (standard error) and STATUS.
try_start() {
  local out="$E2E_OUT/start-up-failure.out" err="$E2E_OUT/start-up-failure.err"
  STATUS=0
  env "$@" "$binary" >"$out" 2>"$err" </dev/null || STATUS=$?
  OUT="$(cat "$out")"
  ERR="$(cat "$err")"
}

expect_one_clear_line() {
  local case="$1" reason="$2"
  [ "$STATUS" = "1" ] || fail "$case: exit status $STATUS, expected 1 (stderr: $ERR)"
  [ "$(printf '%s\n' "$ERR" | grep -c .)" = "1" ] || fail "$case: not one line on standard error: $ERR"
  grep -q "^Kestrel Runtime: cannot open the window: " <<<"$ERR" || fail "$case: the line does not say what failed: $ERR"
  # SDL's own words, and the display they were about.
  grep -qF "$reason" <<<"$ERR" || fail "$case: the line does not give SDL's reason '$reason': $ERR"
  grep -q "^Kestrel Runtime version: 3.03$" <<<"$OUT" || fail "$case: no banner before the failure"
}

# A display that does not exist: SDL cannot reach it.
try_start -u WAYLAND_DISPLAY DISPLAY=:4095
expect_one_clear_line "a display that does not exist" "x11 not available (DISPLAY is :4095)"

# No display at all.
try_start -u DISPLAY -u WAYLAND_DISPLAY
expect_one_clear_line "no display" "x11 not available (DISPLAY is not set)"
echo "PASS"
