#!/usr/bin/env bash
# check-assets-regenerate.sh -- makes every picture and sound again, in a scratch folder, and compares them byte for
# byte with the files in assets/: the generators are deterministic and what is committed is what they make.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

mkdir -p "$scratch/tools" "$scratch/assets"
cp -r "$root/tools/art" "$root/tools/sound" "$scratch/tools/"
/usr/bin/python3 "$scratch/tools/art/build.py" >/dev/null
/usr/bin/python3 "$scratch/tools/sound/build.py" --out "$scratch/assets" >/dev/null

status=0
while IFS=$'\t' read -r name _rest; do
  [ -n "$name" ] || continue
  if ! cmp -s "$root/assets/$name" "$scratch/assets/$name"; then
    echo "differs when made again: assets/$name"
    status=1
  fi
done <"$root/assets/MANIFEST.tsv"
cmp -s "$root/assets/MANIFEST.tsv" "$scratch/assets/MANIFEST.tsv" || { echo "differs: assets/MANIFEST.tsv"; status=1; }
cmp -s "$root/docs/art/contact-sheet.png" "$scratch/docs/art/contact-sheet.png" ||
  { echo "differs: docs/art/contact-sheet.png"; status=1; }
[ $status -eq 0 ] && echo "every picture and sound is made again identically"
exit $status
