#!/usr/bin/env bash
# `make run`, typed as the README gives it, in a clean copy of the sources on a desktop with a window manager: it
# builds the game without warnings as errors, the window "Quillon" appears, and the window manager's close ends
# make with status 0. Then the README's replay example, in the same copy with the replay tool that make run built
# beside the game, prints the probe line the README shows. Last, `make bench` in the same copy, with no display: it
# builds the benchmarks beside the game make run has built (the same tree, so the game is not compiled again), prints
# each one's table and ends with status 0.
set -euo pipefail
source "$(dirname "$0")/../e2e/lib/common.sh"
on_private_server 1920x1080 "$@"
root="$(cd "$(dirname "$0")/../.." && pwd)"

scratch="$(mktemp -d)"
openbox >/dev/null 2>&1 &
WM_PID=$!
cleanup() {
  stop_game
  kill "$WM_PID" 2>/dev/null || true
  rm -rf "$scratch"
}
trap cleanup EXIT

"$root/tools/clean-copy.sh" "$scratch/quillon"
GAME_LOG="$E2E_OUT/make-run.log"
(cd "$scratch/quillon" && exec make run) >"$GAME_LOG" 2>&1 </dev/null &
GAME_PID=$!

# The build comes first: up to ten minutes on a busy machine.
wait_window 600 "make run"
grep -q "^Kestrel Runtime version: 3.03$" "$GAME_LOG" || fail "the game did not print its banner"

# A player's build shows warnings but never stops on them.
flags="$(cat "$scratch/quillon/build/release/CMakeFiles/quillon.dir/flags.make")"
grep -q -- "-Wall" <<<"$flags" || fail "the release build does not show warnings"
! grep -q -- "-Werror" <<<"$flags" || fail "the release build treats warnings as errors"

wait_size "$(screen_size)"
screenshot make-run
wmctrl -c Quillon
wait_exit
[ "$GAME_STATUS" = "0" ] || fail "make run ended with status $GAME_STATUS after the window manager closed the window"

readme="$root/README.md"
example='$ build/release/quillon-replay --script skip.txt --state GS_SPLASH'
shown="$(grep -A1 -xF -- "$example" "$readme" | tail -n 1)"
[ -n "$shown" ] && [ "$shown" != "$example" ] || fail "the README shows no replay example"
sed -n '/^\$ cat skip.txt$/,/^\$ build/{/^\$ /d;p}' "$readme" >"$scratch/quillon/skip.txt"
grep -q "^close " "$scratch/quillon/skip.txt" || fail "the README's skip.txt could not be read"
status=0
(cd "$scratch/quillon" && build/release/quillon-replay --script skip.txt --state GS_SPLASH) \
  >"$E2E_OUT/readme-replay.log" 2>&1 </dev/null || status=$?
[ "$status" = "0" ] || fail "the README's replay example ended with status $status"
grep -qxF -- "$shown" "$E2E_OUT/readme-replay.log" ||
  fail "the README's replay example printed $(grep '^probe' "$E2E_OUT/readme-replay.log"), not $shown"

game_built="$(stat -c %Y "$scratch/quillon/build/release/libquillon_game.a")"
started=$(date +%s)
status=0
(cd "$scratch/quillon" && env -u DISPLAY make bench) >"$E2E_OUT/make-bench.log" 2>&1 </dev/null || status=$?
echo "make bench took $(($(date +%s) - started)) s, status $status (its output: $E2E_OUT/make-bench.log)"
[ "$status" = "0" ] || { tail -n 40 "$E2E_OUT/make-bench.log" >&2; fail "make bench ended with status $status"; }
for bench in bench_editor_place_undo bench_frame_wait bench_level_frame; do
  grep -q "^== $bench ==$" "$E2E_OUT/make-bench.log" || fail "make bench did not run $bench"
done
grep -q "^placing  *frames" "$E2E_OUT/make-bench.log" || fail "the editor benchmark printed no table"
grep -qE "^0 +[0-9]+\.[0-9]+ +[0-9]+\.[0-9]+ " "$E2E_OUT/make-bench.log" || fail "the frame wait benchmark printed no row"
grep -q "^Update + Draw + present " "$E2E_OUT/make-bench.log" || fail "the level frame benchmark printed no table"
[ "$(stat -c %Y "$scratch/quillon/build/release/libquillon_game.a")" = "$game_built" ] ||
  fail "make bench built the game again instead of using make run's"
echo "PASS"
