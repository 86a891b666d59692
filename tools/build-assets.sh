#!/usr/bin/env bash
# build-assets.sh -- regenerates every picture and sound in assets/ from the generators in tools/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
# The sound generators work on arrays of tens of megabytes, made and dropped by the thousand. glibc's allocator would
# map each anew from the kernel (and clear it page by page) and give it back at once; kept in the heap, they are
# reused: the same files, a fifth quicker.
export MALLOC_MMAP_THRESHOLD_=33554432 MALLOC_TRIM_THRESHOLD_=1073741824 MALLOC_TOP_PAD_=268435456
/usr/bin/python3 tools/art/build.py
/usr/bin/python3 tools/sound/build.py
