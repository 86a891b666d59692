#!/usr/bin/env bash
# run-bench.sh -- builds the benchmarks in the player's Release tree (build/release, where make run builds the game with
# the same flags, so that one of them builds the game for both) and runs each, under a virtual X server when there is
# no display.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
if [ "${1:-}" != "--inner" ]; then
cmake -S . -B build/release -DCMAKE_BUILD_TYPE=Release -DQUILLON_TESTS=OFF -DQUILLON_BENCH=ON >/dev/null
cmake --build build/release -j"${JOBS:-2}"
fi
export SDL_AUDIODRIVER=dummy
run_all() {
  for bench in build/release/bench/bench_*; do
    [ -x "$bench" ] || continue
    echo "== $(basename "$bench") =="
    (cd assets && "../$bench")
  done
}
if [ -n "${DISPLAY:-}" ]; then
  run_all
else
  exec xvfb-run -a -s "-screen 0 1920x1080x24 -nolisten tcp" "$0" --inner
fi
