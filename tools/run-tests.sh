#!/usr/bin/env bash
# run-tests.sh -- builds the tests twice (plain, and with AddressSanitizer and UndefinedBehaviorSanitizer) and runs
# every test of both builds, after the fuzz targets of the file readers have run for a short time each (clang's
# libFuzzer under AddressSanitizer, tree build/fuzz; FUZZ_SECONDS, default 20). Without an X display, or always
# unless QUILLON_TEST_ON_DISPLAY=1, a private virtual X server of 1920 by 1080 is started for the run. Sound goes
# to SDL's silent driver.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
jobs="${JOBS:-2}"

if [ "${1:-}" != "--inner" ]; then
  cmake -S . -B build/test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUILLON_SANITIZE=OFF >/dev/null
  cmake --build build/test -j"$jobs"
  cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DQUILLON_SANITIZE=ON >/dev/null
  cmake --build build/asan -j"$jobs"
  cmake -S tests/fuzz -B build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ >/dev/null
  cmake --build build/fuzz -j"$jobs"
fi

export SDL_AUDIODRIVER=dummy
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:allow_user_segv_handler=1"
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

run_both() {
  echo "== tests with AddressSanitizer and UndefinedBehaviorSanitizer =="
  (cd build/asan && ctest -j"$jobs" --output-on-failure) || return 1
  echo "== tests =="
  (cd build/test && ctest -j"$jobs" --output-on-failure)
}

# Each target starts from its seed corpus; what it discovers goes to build/fuzz/new, never into the sources.
# Any finding ends the target with a non-zero status and fails the run.
run_fuzz() {
  local seconds="${FUZZ_SECONDS:-20}"
  local target
  rm -rf build/fuzz/tmp build/fuzz/new build/fuzz/artifacts
  mkdir -p build/fuzz/tmp build/fuzz/artifacts
  for target in level_file progress_file; do
    echo "== fuzzing the ${target/_/ } reader for ${seconds} s =="
    mkdir -p "build/fuzz/new/$target"
    TMPDIR="$root/build/fuzz/tmp" ASAN_OPTIONS="detect_leaks=1" "build/fuzz/fuzz_$target" \
      -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="build/fuzz/artifacts/$target-" \
      "build/fuzz/new/$target" "tests/fuzz/corpus/$target" >"build/fuzz/$target.log" 2>&1 || {
      tail -n 60 "build/fuzz/$target.log"
      echo "fuzzing the $target reader found a problem; the input is in build/fuzz/artifacts" >&2
      return 1
    }
    grep -E '^(Done|stat::number_of_executed_units)' "build/fuzz/$target.log" || true
  done
}

if [ "${1:-}" = "--inner" ] || { [ -n "${DISPLAY:-}" ] && [ "${QUILLON_TEST_ON_DISPLAY:-0}" = "1" ]; }; then
  # The fuzzers first, so that the run ends with CTest's summary.
  run_fuzz
  run_both
else
  exec xvfb-run -a -s "-screen 0 1920x1080x24 -nolisten tcp" "$0" --inner
fi
