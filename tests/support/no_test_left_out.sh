#!/usr/bin/env bash
# no_test_left_out.sh BINARY FILTER -- fails, naming them, when the GoogleTest binary holds tests that the filter
# (the union of the per-file groups CTest runs) does not select, so that no test is silently never run.
set -euo pipefail
binary="$1"
filter="$2"
left="$("$binary" --gtest_list_tests --gtest_filter="-$filter" | grep -v '^Running main' || true)"
if [ -n "$left" ]; then
  echo "tests outside every group (write their TEST line as TEST(Suite, Name) on one line):" >&2
  echo "$left" >&2
  exit 1
fi
total="$("$binary" --gtest_list_tests | grep -c '^  ')"
echo "every one of the $total tests is in a group"
