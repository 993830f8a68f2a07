#!/usr/bin/env bash
# The folders' include arrows point one way: a header of a higher layer
# included from a lower one fails this test with the offending lines.
# Usage: dependency_arrows_test.sh SOURCE_DIR
set -u
cd "$1" || exit 2

# folder : prefixes it must never include
rules=(
  "base:expr/ platform/ complex/ matrix/ geometry/ graph/ tools/ app/ cli/ mathpad/ output/"
  "expr:platform/ complex/ matrix/ geometry/ graph/ tools/ app/ cli/"
  "platform:expr/ complex/ matrix/ geometry/ graph/ tools/ app/ cli/"
  "complex:platform/qt/ graph/ tools/ app/ cli/"
  "matrix:platform/qt/ graph/ tools/ app/ cli/"
  "geometry:platform/qt/ graph/ tools/ app/ cli/"
  "graph:tools/ app/ cli/"
  "tools:app/ cli/"
)

failed=0
checked=0
for rule in "${rules[@]}"; do
  folder=${rule%%:*}
  for prefix in ${rule#*:}; do
    # Qt views of a folder (its qt/ subfolder) may use the Qt platform layer.
    hits=$(grep -rn --include='*.h' --include='*.cpp' "#include \"$prefix" "$folder" 2>/dev/null |
           grep -v "^$folder/qt/.*#include \"platform/qt/")
    checked=$((checked + 1))
    if [ -n "$hits" ]; then
      echo "$folder/ must not include $prefix:"
      echo "$hits"
      failed=$((failed + 1))
    fi
  done
done

# Core folders stand without Qt (their qt/ subfolders excepted).
for folder in base expr complex matrix geometry graph tools; do
  hits=$(grep -rln --include='*.h' --include='*.cpp' -E '#include <Q[A-Za-z]+>' "$folder" | grep -v "^$folder/qt/")
  checked=$((checked + 1))
  if [ -n "$hits" ]; then
    echo "$folder/ must not include Qt headers outside qt/:"
    echo "$hits"
    failed=$((failed + 1))
  fi
done

echo "arrows: $((checked - failed)) passed, $failed failed"
[ "$failed" -eq 0 ]
