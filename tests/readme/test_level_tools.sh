#!/usr/bin/env bash
# The level commands of the README, typed as it gives them: the level files written again by levels.py and the
# previews drawn again by previews.sh, in a clean copy of the sources, change no committed file; and the kept
# replay the README shows, watched with the test tree's quillon-replay from the sources' folder, loses the second
# level and returns to the level selection.
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
out="${QUILLON_TEST_OUTPUT:-/tmp/quillon-test-output}/readme"
mkdir -p "$out"

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
"$root/tools/clean-copy.sh" "$scratch/quillon"
cd "$scratch/quillon"

/usr/bin/python3 tools/levels/levels.py assets/ >"$out/levels-py.log" 2>&1 || fail "levels.py failed: $(cat "$out/levels-py.log")"
changed="$(git status --porcelain)"
[ -z "$changed" ] || fail "levels.py wrote level files that differ from the committed ones: $changed"

# previews.sh draws with build/test/quillon-levelshot: the copy borrows the one this test tree built.
mkdir -p build/test
ln -s "$root/build/test/quillon-levelshot" build/test/quillon-levelshot
env -u DISPLAY tools/levels/previews.sh >"$out/previews-sh.log" 2>&1 || fail "previews.sh failed: $(cat "$out/previews-sh.log")"
[ "$(grep -c "drawn from assets/Level" "$out/previews-sh.log")" = "6" ] || fail "previews.sh did not draw six previews"
changed="$(git status --porcelain -- assets)"
[ -z "$changed" ] || fail "the committed previews are not what previews.sh draws from the level files: $changed"

# Watching a kept replay as the README gives it (every frame drawn), from the sources' folder after make test has
# built the test tree.
cd "$root"
command="$(grep -oE '^build/test/quillon-replay .*\.script$' "$root/README.md" || true)"
[ -n "$command" ] && [ "$(wc -l <<<"$command")" = "1" ] || fail "the README gives no one replay command to watch: $command"
status=0
# shellcheck disable=SC2086 # the README's command, split into words as a shell would
"$root/tests/e2e/lib/with-xvfb.sh" 1920x1080 $command >"$out/watch.log" 2>&1 </dev/null || status=$?
[ "$status" = "0" ] || fail "the README's replay command ended with status $status: $(tail -n 5 "$out/watch.log")"
grep -q "^probe step=640 state=GS_LEVEL_1 .* sLost=1 " "$out/watch.log" || fail "the second level was not lost"
grep -q "^probe step=700 state=GS_LS " "$out/watch.log" || fail "the level selection did not follow"
echo "PASS"
