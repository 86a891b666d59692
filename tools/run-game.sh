#!/usr/bin/env bash
# run-game.sh -- starts Quillon from the folder that holds its pictures, sounds and level files.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
binary="${1:-$root/build/release/quillon}"
# The game starts inside assets/, so a path given relative to where this was called must become absolute first.
case "$binary" in
  /*) ;;
  *) binary="$PWD/$binary" ;;
esac
[ -x "$binary" ] || { echo "Quillon is not built: no program at $binary (make run builds it)." >&2; exit 1; }

if [ -z "${DISPLAY:-}" ]; then
  echo "Quillon needs a graphical desktop: no X display is set (DISPLAY is empty)." >&2
  exit 1
fi
cd "$root/assets"
exec "$binary"
