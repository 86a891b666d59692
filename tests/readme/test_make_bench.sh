#!/usr/bin/env bash
# `make bench`, typed as the README gives it, in a clean copy of the sources: it builds the benchmarks and prints
# each one's table, and ends with status 0. (`make check` is run as typed by make test itself, as its first stage.)
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
out="${QUILLON_TEST_OUTPUT:-/tmp/quillon-test-output}/readme"
mkdir -p "$out"

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
"$root/tools/clean-copy.sh" "$scratch/quillon"

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

started=$(date +%s)
status=0
(cd "$scratch/quillon" && env -u DISPLAY make bench) >"$out/make-bench.log" 2>&1 </dev/null || status=$?
echo "make bench took $(($(date +%s) - started)) s, status $status (its output: $out/make-bench.log)"
[ "$status" = "0" ] || { tail -n 40 "$out/make-bench.log" >&2; fail "make bench ended with status $status"; }
for bench in bench_editor_place_undo bench_frame_wait bench_level_frame; do
  grep -q "^== $bench ==$" "$out/make-bench.log" || fail "make bench did not run $bench"
done
grep -q "^placing  *frames" "$out/make-bench.log" || fail "the editor benchmark printed no table"
grep -qE "^0 +[0-9]+\.[0-9]+ +[0-9]+\.[0-9]+ " "$out/make-bench.log" || fail "the frame wait benchmark printed no row"
grep -q "^Update + Draw + present " "$out/make-bench.log" || fail "the level frame benchmark printed no table"
echo "PASS"
