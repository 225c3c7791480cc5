#!/bin/sh
# Builds module-host in the current folder, with the headers of an install in PREFIX: build.sh PREFIX
set -e
${CC:-cc} -std=gnu11 -Wall -Wextra -I"$1/include" "$(dirname "$0")/module_host.c" -o module-host \
    $(pkg-config --cflags --libs xcb)
