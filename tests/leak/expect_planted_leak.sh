#!/usr/bin/env bash
# Runs the planted leak program (in assets/, where its sound lies) twice under the test runs' own leak settings
# (ASAN_OPTIONS and LSAN_OPTIONS as the sanitizer tests get them, with the project's suppressions). With their fast
# unwinder, both forgotten objects must be reported and fail the program; with the slow unwinder as well, the report
# must name the game's functions that forgot them.
set -uo pipefail
program="$1"
fail() { echo "FAIL: $*"; exit 1; }

run() {
  out="$(SDL_AUDIODRIVER=dummy "$program" 2>&1)"
  status=$?
  echo "$out"
  grep -q "^surface made$" <<<"$out" || fail "the surface was not made"
  grep -q "^chunk decoded$" <<<"$out" || fail "the sound was not decoded"
  [ "$status" -ne 0 ] || fail "the leaks did not fail the program"
  grep -q "ERROR: LeakSanitizer: detected memory leaks" <<<"$out" || fail "LeakSanitizer reported nothing"
}

# The fast unwinder's stacks stop inside SDL, but the surface and the chunk are there: two direct leaks (the surface's
# and the chunk's records), with the pixels and the samples, more than 16384 bytes in all, held by them.
run
[ "$(grep -cE "^Direct leak of [0-9]+ byte" <<<"$out")" -ge 2 ] || fail "not both forgotten objects are reported"
leaked="$(sed -nE 's/^SUMMARY: AddressSanitizer: ([0-9]+) byte.*/\1/p' <<<"$out")"
[ -n "$leaked" ] && [ "$leaked" -gt 16384 ] || fail "the leaks reported (${leaked:-none} bytes) do not hold the pixels"

ASAN_OPTIONS="${ASAN_OPTIONS:-}:fast_unwind_on_malloc=0"
export ASAN_OPTIONS
run
grep -q "in ForgetASurface" <<<"$out" || fail "the forgotten surface is not reported with the game's frame"
grep -q "in ForgetAChunk" <<<"$out" || fail "the forgotten mixer chunk is not reported with the game's frame"
echo "PASS"
