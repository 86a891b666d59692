#!/usr/bin/env bash
# clean-copy.sh -- puts a clean copy of the project's sources into DEST, as a fresh clone would have them: every file
# git tracks or would add (nothing it ignores, so no build trees), committed there as one commit, so that a test can
# ask git afterwards what a command changed. Working-tree edits not yet committed are part of the copy.
#
# Usage: tools/clean-copy.sh DEST
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dest="$1"

git -C "$root" rev-parse --git-dir >/dev/null 2>&1 || { echo "clean-copy: $root is not a git checkout" >&2; exit 1; }
mkdir -p "$dest"
(cd "$root" && git ls-files -z --cached --others --exclude-standard |
  while IFS= read -r -d '' file; do [ -e "$file" ] && printf '%s\0' "$file"; done |
  xargs -0 cp --parents -t "$dest")
git -C "$dest" init -q
git -C "$dest" add -A
git -C "$dest" -c user.name=test -c user.email=test@localhost commit -q -m "clean copy"
