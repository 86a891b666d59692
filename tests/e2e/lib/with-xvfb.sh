#!/usr/bin/env bash
# with-xvfb.sh -- runs a command on a private virtual X server of the given size and gives back its status.
#
# Usage: tests/e2e/lib/with-xvfb.sh WIDTHxHEIGHT COMMAND [ARG]...
#
# The server chooses a free display number itself (-displayfd), so that any number of these can start at the same
# time, beside other servers on the machine, without two of them racing for one number.
set -euo pipefail
size="$1"
shift

fifo_dir="$(mktemp -d)"
trap 'rm -rf "$fifo_dir"' EXIT
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$fifo_dir/display" 2>"$fifo_dir/log" &
xvfb_pid=$!
trap 'kill "$xvfb_pid" 2>/dev/null || true; wait "$xvfb_pid" 2>/dev/null || true; rm -rf "$fifo_dir"' EXIT

number=""
for _ in $(seq 1 200); do
  number="$(head -n 1 "$fifo_dir/display" 2>/dev/null || true)"
  [ -n "$number" ] && break
  kill -0 "$xvfb_pid" 2>/dev/null || { echo "with-xvfb: the virtual X server did not start:" >&2; cat "$fifo_dir/log" >&2; exit 1; }
  sleep 0.05
done
[ -n "$number" ] || { echo "with-xvfb: the virtual X server gave no display number" >&2; exit 1; }

export DISPLAY=":$number"
unset XAUTHORITY WAYLAND_DISPLAY
status=0
"$@" || status=$?
exit "$status"
