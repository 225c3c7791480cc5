#!/bin/sh
# Builds two-charts in the current folder. pkg-config must find zantroq-chart: for an install in PREFIX,
# PKG_CONFIG_PATH=PREFIX/lib/pkgconfig. The last option makes the program find the library there.
set -e
here=$(dirname "$0")
${CXX:-c++} -std=c++17 "$here/main.cpp" -o two-charts $(pkg-config --cflags --libs zantroq-chart) \
    -Wl,-rpath,"$(pkg-config --variable=libdir zantroq-chart)"
