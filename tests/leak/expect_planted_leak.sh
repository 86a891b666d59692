#!/usr/bin/env bash
# Runs the planted leak program (in assets/, where its sound lies) under the project's leak suppressions and
# passes only when LeakSanitizer reports both the forgotten surface and the forgotten mixer chunk.
set -uo pipefail
program="$1"
out="$(SDL_AUDIODRIVER=dummy "$program" 2>&1)"
status=$?
echo "$out"
fail() { echo "FAIL: $*"; exit 1; }
grep -q "^surface made$" <<<"$out" || fail "the surface was not made"
grep -q "^chunk decoded$" <<<"$out" || fail "the sound was not decoded"
[ "$status" -ne 0 ] || fail "the leaks did not fail the program"
grep -q "ERROR: LeakSanitizer: detected memory leaks" <<<"$out" || fail "LeakSanitizer reported nothing"
grep -q "in ForgetASurface" <<<"$out" || fail "the forgotten surface is not reported"
grep -q "in ForgetAChunk" <<<"$out" || fail "the forgotten mixer chunk is not reported"
echo "PASS"
