#!/usr/bin/env bash
# Builds everything and runs all tests. What stands on the command line goes to ctest, such as -R Trend.
set -euo pipefail
cd "$(dirname "$0")"
packaging/install-packages.sh build run test
cmake --preset release -DZANTROQ_WERROR=ON
cmake --build --preset release
ctest --preset release --output-on-failure "$@"
