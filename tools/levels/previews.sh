#!/usr/bin/env bash
# previews.sh -- the six level selection previews drawn from the real level files by quillon-levelshot, into
# assets/ at the size the level selection shows them (308 by 225). A level whose file is not there yet keeps its
# old preview. Needs build/test/quillon-levelshot (or LEVELSHOT=path) and an X display, or xvfb-run.
#   tools/levels/previews.sh
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
shot="${LEVELSHOT:-$root/build/test/quillon-levelshot}"
[ -x "$shot" ] || { echo "previews.sh: no $shot; build the target quillon-levelshot first" >&2; exit 1; }
run=()
[ -n "${DISPLAY:-}" ] || run=(xvfb-run -a -s "-screen 0 1920x1080x24")

# state, level file, preview
while read -r state file preview; do
  if [ ! -f "$root/assets/$file" ]; then
    echo "previews.sh: assets/$file is missing: assets/$preview left as it was"
    continue
  fi
  if ! log="$(SDL_AUDIODRIVER=dummy "${run[@]}" "$shot" --state "$state" --assets "$root/assets" \
    --out "$root/assets/$preview" --width 308 --height 225 2>&1)"; then
    echo "$log" >&2
    echo "previews.sh: assets/$preview could not be drawn" >&2
    exit 1
  fi
  echo "previews.sh: assets/$preview drawn from assets/$file"
done <<'LIST'
GS_LEVEL_0 Level1.txt peektutorial.png
GS_LEVEL_1 Level2.txt level2peek.png
GS_LEVEL_2 Level3.txt Level3peek.png
GS_LEVEL_3 Level4.txt level4peek.png
GS_LEVEL_4 Level5.txt level5peek.png
GS_LEVEL_5 Level6.txt level6peek.png
LIST
