#!/usr/bin/env bash
# build-release.sh [--tests] [TARGET...]: builds the release configuration in build/release and prints what it does and how long
# that will take. Programs and tests share the folder, so adding the tests compiles nothing again. Words in ZANTROQ_CMAKE are
# passed to cmake at the first configuration, for example -DZANTROQ_WERROR=ON.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=build/release
tests=OFF
[[ "${1:-}" == "--tests" ]] && { tests=ON; shift; }

# A folder configured with tests keeps them. A configured folder is left to ninja, which detects a changed CMakeLists.txt itself.
configured() {
    [[ "$folder/build.ninja" -nt CMakePresets.json ]] || return 1
    [[ "$tests" == OFF ]] || grep -q '^ZANTROQ_TESTS:BOOL=ON$' "$folder/CMakeCache.txt"
}
configure() {
    [[ "$tests" == OFF ]] && grep -qs '^ZANTROQ_TESTS:BOOL=ON$' "$folder/CMakeCache.txt" && tests=ON
    mkdir -p "$folder"
    # shellcheck disable=SC2086
    if ! cmake --preset release -DZANTROQ_TESTS=$tests ${ZANTROQ_CMAKE:-} >"$folder/configure.log" 2>&1; then
        cat "$folder/configure.log" >&2
        return 1
    fi
}
configured || { echo "Configuring build/release"; configure; }

# Each step is one file to compile or one program to link; a slow core takes three seconds for one.
steps=$(ninja -C "$folder" -n "$@" | grep -c '^\[' || true)
[[ "$steps" -eq 0 ]] && exit 0
cores=$(nproc)
jobs=${CMAKE_BUILD_PARALLEL_LEVEL:-$cores}
minutes=$(( (steps * 3 / (jobs < cores ? jobs : cores) + 59) / 60 ))
[[ "$steps" -gt 10 ]] && echo "Building $steps files; on $cores cores this takes up to about $minutes minutes"
# On a terminal ninja shows its progress in one line; in a log each file would be a line.
quiet=()
[[ -t 1 ]] || quiet=(--quiet)
exec cmake --build "$folder" --parallel "$jobs" ${1:+--target "$@"} -- "${quiet[@]}"
