#!/usr/bin/env bash
# build-assets.sh -- regenerates every picture and sound in assets/ from the generators in tools/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
/usr/bin/python3 tools/art/build.py
/usr/bin/python3 tools/sound/build.py
