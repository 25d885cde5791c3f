#!/usr/bin/env bash
# Installs into an empty prefix and builds a user's program every way: find_package, pkg-config, add_subdirectory;
# with the module and with libtarn.
# The paths have a space in them. What configuring alone shows is not built.
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
prefix="$work/a prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null
configure() { cmake -S "$1" -B "$2" "${@:3}" >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }; }

for file in include/ocl_tarn_k1.cl.h share/ocl_tarn_k1/exports.json share/ocl_tarn_k1/exports.schema.json; do
    [ -s "$prefix/$file" ] || { echo "$file is not installed"; exit 1; }
done

user="$work/a user"
mkdir "$user"
cat > "$user/CMakeLists.txt" <<TXT
cmake_minimum_required(VERSION 3.25)
project(user C)
find_package(ocl_tarn_k1 1.0 REQUIRED COMPONENTS tarn)
add_executable(user "$source/examples/call.c")
target_link_libraries(user PRIVATE ocl_tarn_k1::ocl_tarn_k1)
foreach(library tarn tarn_static)
  add_executable(user_of_\${library} "$source/examples/arrays.c")
  target_link_libraries(user_of_\${library} PRIVATE ocl_tarn_k1::\${library})
endforeach()
find_package(ocl_tarn_k1 QUIET COMPONENTS guitar)
if(ocl_tarn_k1_FOUND)
  message(FATAL_ERROR "finds a component that there is none of")
endif()
TXT
configure "$user" "$user/build" -DCMAKE_PREFIX_PATH="$prefix"
cmake --build "$user/build" >/dev/null
"$user/build/user" | grep -q 'exp(1) = 2.7182819'
for library in tarn tarn_static; do "$user/build/user_of_$library" | grep -q 'exp(1) = 2.7182819'; done

pc=$(find "$prefix" -name ocl_tarn_k1.pc)
export PKG_CONFIG_PATH=${pc%/*}
eval "cc \"\$source/examples/call.c\" -o \"\$work/call\" $(pkg-config --cflags --libs ocl_tarn_k1)" \
     "-Wl,-rpath,$(pkg-config --variable=libdir ocl_tarn_k1)"
"$work/call" | grep -q 'exp(1) = 2.7182819'
eval "cc \"\$source/examples/arrays.c\" -o \"\$work/arrays\" $(pkg-config --cflags --libs tarn)" \
     "-Wl,-rpath,$(pkg-config --variable=libdir tarn)"
"$work/arrays" | grep -q 'exp(1) = 2.7182819'
[ "$(readelf -d "$work/arrays" | grep -c 'NEEDED.*\[libtarn.so.1\]')" = 1 ]

# A library directory named absolutely stays where it is named.
configure "$source" "$work/absolute" -DTARN_TOOLS=OFF -DTARN_TESTS=OFF -DCMAKE_INSTALL_LIBDIR=/opt/lib \
    -DCMAKE_INSTALL_PREFIX=/opt/prefix
export PKG_CONFIG_PATH="$work/absolute"
[ "$(pkg-config --variable=libdir ocl_tarn_k1)" = /opt/lib ]
[ "$(pkg-config --variable=includedir ocl_tarn_k1)" = /opt/prefix/include ]

# Inside another project: the target's name, and neither tools nor tests unless they are asked for.
mkdir "$work/outer"
cat > "$work/outer/CMakeLists.txt" <<TXT
cmake_minimum_required(VERSION 3.25)
project(outer C CXX)
add_subdirectory("$source" tarn)
if(TARGET tarn-exports)
  message(FATAL_ERROR "builds tools that nobody asked for")
endif()
add_executable(user "$source/examples/call.c")
target_link_libraries(user PRIVATE ocl_tarn_k1::ocl_tarn_k1)
TXT
configure "$work/outer" "$work/outer/build"

# Tools without tests and tests without tools, with MPFR and without.
for packages in "" -DCMAKE_DISABLE_FIND_PACKAGE_PkgConfig=ON; do
    configure "$source" "$work/tools" --fresh -DTARN_TESTS=OFF $packages
    configure "$source" "$work/tests" --fresh -DTARN_TOOLS=OFF -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON $packages
done
configure "$source" "$work/neither" -DTARN_TOOLS=OFF -DBUILD_TESTING=OFF
[ ! -e "$work/neither/tests" ] || { echo "BUILD_TESTING=OFF builds tests"; exit 1; }
