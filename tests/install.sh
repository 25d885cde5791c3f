#!/usr/bin/env bash
# Installs into an empty prefix and builds a user's program both ways, with find_package and pkg-config.
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/prefix" >/dev/null

mkdir "$work/user"
cat > "$work/user/CMakeLists.txt" <<TXT
cmake_minimum_required(VERSION 3.25)
project(user C)
find_package(ocl_tarn_k1 1.0 REQUIRED)
add_executable(user $source/examples/call.c)
target_link_libraries(user PRIVATE ocl_tarn_k1::ocl_tarn_k1)
TXT
cmake -S "$work/user" -B "$work/user/build" -DCMAKE_PREFIX_PATH="$work/prefix" >/dev/null
cmake --build "$work/user/build" >/dev/null
"$work/user/build/user" | grep -q 'exp(1) = 2.7182819'

pc=$(find "$work/prefix" -name ocl_tarn_k1.pc)
export PKG_CONFIG_PATH=${pc%/*}
libdir=$(pkg-config --variable=libdir ocl_tarn_k1)
# shellcheck disable=SC2046
cc "$source/examples/call.c" -o "$work/call" $(pkg-config --cflags --libs ocl_tarn_k1) -Wl,-rpath,"$libdir"
"$work/call" | grep -q 'exp(1) = 2.7182819'
