#!/usr/bin/env bash
# run-tests.sh -- builds the tests twice (plain, and with AddressSanitizer and UndefinedBehaviorSanitizer) and runs
# every test of both builds. Without an X display, or always unless QUILLON_TEST_ON_DISPLAY=1, a private virtual
# X server of 1920 by 1080 is started for the run. Sound goes to SDL's silent driver.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
jobs="${JOBS:-2}"

if [ "${1:-}" != "--inner" ]; then
  cmake -S . -B build/test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUILLON_SANITIZE=OFF >/dev/null
  cmake --build build/test -j"$jobs"
  cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DQUILLON_SANITIZE=ON >/dev/null
  cmake --build build/asan -j"$jobs"
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
if [ "${1:-}" = "--inner" ] || { [ -n "${DISPLAY:-}" ] && [ "${QUILLON_TEST_ON_DISPLAY:-0}" = "1" ]; }; then
  run_both
else
  exec xvfb-run -a -s "-screen 0 1920x1080x24 -nolisten tcp" "$0" --inner
fi
