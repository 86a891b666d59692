#!/usr/bin/env bash
# `make check` and `make bench`, typed as the README gives them, in a clean copy of the sources: the first builds the
# plain test tree and runs every unit and display test, ending with CTest's summary; the second builds the
# benchmarks and prints each one's table. Both end with status 0.
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

# The inner loop runs its tests on a virtual X server of its own, whatever display this test has.
started=$(date +%s)
status=0
(cd "$scratch/quillon" && env -u DISPLAY make check) >"$out/make-check.log" 2>&1 </dev/null || status=$?
echo "make check took $(($(date +%s) - started)) s, status $status (its output: $out/make-check.log)"
[ "$status" = "0" ] || { tail -n 40 "$out/make-check.log" >&2; fail "make check ended with status $status"; }
summary="$(grep -E "^[0-9]+% tests passed, [0-9]+ tests failed out of [0-9]+" "$out/make-check.log" | tail -n 1)"
[ -n "$summary" ] || fail "make check did not end with CTest's summary"
ran="${summary##* out of }"
[ "$ran" -ge 500 ] || fail "make check ran only $ran tests"
[[ "$summary" == "100% tests passed, 0 tests failed"* ]] || fail "make check: $summary"
grep -q "^unit *= " "$out/make-check.log" || fail "make check ran no unit tests"
grep -q "^display *= " "$out/make-check.log" || fail "make check ran no display tests"
! grep -q "^e2e *= \|^replay *= " "$out/make-check.log" || fail "make check ran more than the unit and display tests"

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
echo "PASS: $summary"
