#!/usr/bin/env bash
# Builds the API reference from the public headers into DIR/html; fails on any Doxygen warning,
# an undocumented public class among them.
set -euo pipefail
out=$(realpath -m "${1:-build/docs}")
cd "$(dirname "$0")/.."
mkdir -p "$out"
GELLO_DOCS_DIR=$out doxygen docs/Doxyfile
if [ -s "$out/warnings.log" ]; then
  cat "$out/warnings.log"
  exit 1
fi
echo "docs: $out/html/index.html"
