#!/usr/bin/env bash
# check-assets-regenerate.sh -- makes every picture and sound again with `make assets`, exactly as the README gives
# it, in a clean copy of the sources, and asks git whether any file changed: the generators are deterministic and
# what is committed is what they make, byte for byte.
#
# Usage: tools/check-assets-regenerate.sh            check now (or wait for the making that make test started)
#        tools/check-assets-regenerate.sh --into DIR  check now, and leave DIR/log and DIR/status
#
# make test starts the making with --into at its very beginning, beside the builds, and exports
# QUILLON_ASSET_REGEN_DIR; the CTest test then only waits for that result. Nothing is ever skipped: without that
# folder the check runs here and now.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"

check() {
  # Not local: the exit trap removes it after check has returned.
  scratch="$(mktemp -d)"
  trap 'rm -rf "$scratch"' EXIT
  "$root/tools/clean-copy.sh" "$scratch/quillon"
  (cd "$scratch/quillon" && make assets) >"$scratch/make-assets.log" 2>&1 ||
    { cat "$scratch/make-assets.log"; echo "make assets failed"; return 1; }
  local changed
  changed="$(git -C "$scratch/quillon" status --porcelain --untracked-files=all)"
  if [ -n "$changed" ]; then
    echo "make assets changed files (M: differs when made again, ??: made but not committed, D: no longer made):"
    echo "$changed"
    return 1
  fi
  echo "make assets made every picture and sound again identically ($(git -C "$scratch/quillon" ls-files assets docs | wc -l) files compared)"
}

if [ "${1:-}" = "--into" ]; then
  dir="$2"
  mkdir -p "$dir"
  status=0
  check >"$dir/log" 2>&1 || status=$?
  echo "$status" >"$dir/status.tmp" && mv "$dir/status.tmp" "$dir/status"
  exit "$status"
fi

dir="${QUILLON_ASSET_REGEN_DIR:-}"
if [ -n "$dir" ] && [ -d "$dir" ]; then
  echo "waiting for the making that make test started beside the builds ($dir)"
  for _ in $(seq 1 1800); do
    [ -f "$dir/status" ] && break
    sleep 0.5
  done
  [ -f "$dir/status" ] || { echo "the making did not finish"; exit 1; }
  cat "$dir/log"
  exit "$(cat "$dir/status")"
fi
check
