#!/usr/bin/env bash
# Builds everything and runs all tests. Arguments are passed to ctest, for example -R Trend.
set -euo pipefail
cd "$(dirname "$0")"
packaging/install-packages.sh build run test
packaging/build-release.sh --tests
ctest --preset release "$@"
