#!/usr/bin/env bash
# run-tests.sh -- the test loop.
#
#   tools/run-tests.sh          (make test)  everything: `make check` itself first (the plain tree build/test and its
#                               unit and display tests), then the sanitizer tree build/asan (AddressSanitizer,
#                               UndefinedBehaviorSanitizer) with every test (the tests' own code, compiled alike in
#                               both trees, is linked from build/test), while the fuzz targets of the file
#                               readers run for FUZZ_SECONDS (default 10) each; one CTest then runs every other test
#                               of both trees and ends the run with its summary.
#   tools/run-tests.sh --check  (make check) the inner loop: rebuilds the plain tree and runs its unit and display
#                               tests.
#
# What runs side by side, so that two cores stay busy: the making of every asset again (for the byte-for-byte check)
# starts first and runs beside the builds; the two fuzz targets run together beside the builds as well; the tests
# run several at a time, each end-to-end test on a private virtual X server of its own. The other tests share one
# private virtual X server of 1920 by 1080 (or the current display with QUILLON_TEST_ON_DISPLAY=1). Sound goes to
# SDL's silent driver. JOBS sets the build's parallel jobs (2), TEST_JOBS the tests' (3).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
jobs="${JOBS:-2}"
test_jobs="${TEST_JOBS:-3}"
mode="full"
[ "${1:-}" = "--check" ] && mode="check"

export SDL_AUDIODRIVER=dummy
# No session bus: SDL's screen saver inhibition finds none at once instead of forking dbus-launch in every test.
export DBUS_SESSION_BUS_ADDRESS="disabled:"
# The fast unwinder on malloc: the slow one deadlocks in libgcc's unwinder when the software renderer registers the
# frames of code it has just compiled (a malloc under the unwinder's own lock). No interception of __tls_get_addr:
# this glibc allocates dynamic thread-local storage with malloc, so the leak checker reaches it through the heap, and
# the checker's own guess at those blocks' bounds is wrong for some addresses and crashes it (docs/testing.md).
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:allow_user_segv_handler=1:intercept_tls_get_addr=0"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

# Runs its arguments on the test display: a private virtual X server, or the current display when asked.
on_test_display() {
  if [ -n "${DISPLAY:-}" ] && [ "${QUILLON_TEST_ON_DISPLAY:-0}" = "1" ]; then
    "$@"
  else
    "$root/tests/e2e/lib/with-xvfb.sh" 1920x1080 "$@"
  fi
}

# Ninja when it is there (quicker to find what a one-file change needs); a tree made by another generator is
# configured anew.
generator=()
command -v ninja >/dev/null 2>&1 && generator=(-G Ninja)
configure() {
  local tree="$1"
  shift
  local want="${generator[1]:-Unix Makefiles}"
  if [ -f "$tree/CMakeCache.txt" ] && ! grep -q "^CMAKE_GENERATOR:INTERNAL=$want\$" "$tree/CMakeCache.txt"; then
    rm -rf "$tree/CMakeCache.txt" "$tree/CMakeFiles"
  fi
  cmake "${generator[@]}" -B "$tree" "$@" >/dev/null
}

step() {
  echo "== $* ($(($(date +%s) - started)) s) =="
}
started=$(date +%s)

if [ "$mode" = "check" ]; then
  step "building the plain tree"
  configure build/test -S . -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUILLON_SANITIZE=OFF -DQUILLON_WERROR=ON
  cmake --build build/test -j"$jobs"
  step "unit and display tests"
  cd build/test
  on_test_display ctest -j"$test_jobs" -L '^(unit|display)$' --output-on-failure
  exit $?
fi

background=()
fuzz_tmp=""
cleanup() {
  local pid
  for pid in "${background[@]}"; do kill "$pid" 2>/dev/null || true; done
  [ -z "$fuzz_tmp" ] || rm -rf "$fuzz_tmp"
}
trap cleanup EXIT

# The byte-for-byte making of every asset: first, beside everything else. The CTest test waits for its result.
regen="$root/build/asset-regen"
rm -rf "$regen"
mkdir -p "$regen"
export QUILLON_ASSET_REGEN_DIR="$regen"
step "making every picture and sound again, beside the builds"
tools/check-assets-regenerate.sh --into "$regen" >/dev/null 2>&1 &
background+=($!)

step "building the fuzz targets"
configure build/fuzz -S tests/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++
cmake --build build/fuzz -j"$jobs"

# Each target starts from its seed corpus; what it discovers goes to build/fuzz/new, never into the sources.
# Any finding ends the target with a non-zero status and fails the run.
seconds="${FUZZ_SECONDS:-10}"
fuzz_targets=(level_file progress_file)
rm -rf build/fuzz/tmp build/fuzz/new build/fuzz/artifacts
mkdir -p build/fuzz/artifacts
# The readers read and write real files, one per input: in memory (/dev/shm) a target runs about three times as many
# inputs a second as on the disk.
fuzz_tmp="$(mktemp -d /dev/shm/quillon-fuzz.XXXXXX 2>/dev/null)" || { fuzz_tmp=""; mkdir -p build/fuzz/tmp; }
fuzz_pids=()
step "fuzzing the level file and progress file readers for ${seconds} s each, beside the builds"
for target in "${fuzz_targets[@]}"; do
  mkdir -p "build/fuzz/new/$target"
  TMPDIR="${fuzz_tmp:-$root/build/fuzz/tmp}" ASAN_OPTIONS="detect_leaks=1" "build/fuzz/fuzz_$target" \
    -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="build/fuzz/artifacts/$target-" \
    "build/fuzz/new/$target" "tests/fuzz/corpus/$target" >"build/fuzz/$target.log" 2>&1 &
  fuzz_pids+=($!)
  background+=($!)
done

# The inner loop, typed as the README gives it: it builds the plain tree and runs its unit and display tests, which
# the last CTest leaves out. A failure ends make test here, with make check's own summary as the last word.
step "make check"
mkdir -p build
status=0
make --no-print-directory -C "$root" check 2>&1 | tee build/make-check.log || status=$?
if [ "$status" != "0" ]; then
  echo "make check ended with status $status: make test stops here" >&2
  exit 1
fi
summary="$(grep -E "^[0-9]+% tests passed, [0-9]+ tests failed out of [0-9]+" build/make-check.log | tail -n 1)"
labels="$(sed -n '/^Label Time Summary:/,/^$/p' build/make-check.log | grep -oE '^[a-z.]+ +=' | awk '{print $1}' |
  sort | tr '\n' ' ')"
if [[ "$summary" != "100% tests passed, 0 tests failed"* ]] || [ "$labels" != "display unit " ]; then
  echo "make check did not end with a full pass of the unit and display tests alone (\"$summary\"; labels: $labels)" >&2
  exit 1
fi

step "building the sanitizer tree"
configure build/asan -S . -DCMAKE_BUILD_TYPE=Debug -DQUILLON_SANITIZE=ON -DQUILLON_WERROR=ON \
  -DQUILLON_TEST_CODE_FROM="$root/build/test"
cmake --build build/asan -j"$jobs"

fuzz_failed=0
for i in "${!fuzz_targets[@]}"; do
  target="${fuzz_targets[$i]}"
  if wait "${fuzz_pids[$i]}"; then
    echo "fuzzing the ${target/_/ } reader: $(grep -E '^stat::number_of_executed_units' "build/fuzz/$target.log" || echo 'no stats')"
  else
    tail -n 60 "build/fuzz/$target.log"
    echo "fuzzing the $target reader found a problem; the input is in build/fuzz/artifacts" >&2
    fuzz_failed=1
  fi
done
[ "$fuzz_failed" -eq 0 ] || exit 1

# One CTest over both trees, but for what make check has run (the labels unit and display): the sanitizer tree's
# tests and labels carry the prefix "asan.".
cat >build/CTestTestfile.cmake <<'CTEST'
# Made by tools/run-tests.sh: both test trees under one CTest run.
subdirs("test")
subdirs("asan")
CTEST
step "every test of both trees"
on_test_display ctest --test-dir build -j"$test_jobs" -LE '^(unit|display)$' --output-on-failure
