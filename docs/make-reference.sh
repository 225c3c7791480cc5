#!/usr/bin/env bash
# Writes the reference of the public headers to build/reference/html. Fails if anything is not documented.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build/reference
doxygen docs/Doxyfile
echo "The reference is in build/reference/html/index.html"
