#!/usr/bin/env bash
# The Debian packages of a build and the one for x86-64-v3 beside it, made by the commands of docs/build.md: what is in them, what
# they depend on, and programs made and run with what they unpack to.   packages.sh BUILD SOURCE-DIRECTORY
set -euo pipefail
build=$1 source=$2
for tool in cpack dpkg-deb dpkg-shlibdeps; do
    command -v $tool >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
done
work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
fail() { echo "$1"; exit 1; }
cd "$work"

# Without the build for x86-64-v3 there are no packages, and one line says so.
sed 's|"[^"]*/libtarn\.so\.1"|"/nowhere/libtarn.so.1"|' "$build/cpack-v3.cmake" > without.cmake
if cpack -G DEB --config "$build/CPackConfig.cmake" -B none -D CPACK_PROJECT_CONFIG_FILE="$work/without.cmake" >log 2>&1
then fail "packs without a build for x86-64-v3"; fi
grep -q 'no build for x86-64-v3 in ' log && [ -z "$(find . -name '*.deb')" ] || { cat log; fail "does not say what is missing"; }

# The page's commands, beside the build; what they install is unpacked here.
mkdir build packages shims
ln -s "$build" build/release
cat > shims/sudo <<'SH'
#!/usr/bin/env bash
[ "$*" = "apt install ${*:3}" ] && [ $# -eq 4 ] || exit 1
for package in "${@:3}"; do dpkg-deb -x "$package" root; done
SH
chmod +x shims/sudo
awk '/^## /{ within = $0 == "## Debian packages" } /^```/{ code = within && /^```sh$/; next } code' "$source/docs/build.md" > commands
grep -q cpack commands || fail "docs/build.md has no commands for packages"
PATH=$work/shims:$PATH bash -eu commands >log 2>&1 || { tail -n 20 log; exit 1; }
mv build/packages/*.deb packages
runtime=$(echo packages/ocl-tarn-k1_*.deb) development=$(echo packages/ocl-tarn-k1-dev_*.deb)
field() { dpkg-deb -f "$1" "$2"; }
version=$(field "$runtime" Version)

# What control files say.
for package in "$runtime" "$development"; do
    for line in Package Version Architecture Maintainer Section Priority Installed-Size Description; do
        [ -n "$(field "$package" $line)" ] || fail "$package lacks $line"
    done
    [ "$(field "$package" Architecture)" = amd64 ] || fail "$package is not for amd64"
    dpkg-deb -e "$package" "$package.control"
    dpkg-deb -x "$package" "$package.tree"
    (cd "$package.tree" && md5sum --quiet -c ../../"$package.control/md5sums")
    dpkg-deb -c "$package" | awk '$1 ~ /^-/ && $1 !~ /^-rw(-r--r--|xr-xr-x)$/ || $1 ~ /^d/ && $1 != "drwxr-xr-x" || $2 != "root/root" { print; bad = 1 } END { exit bad }' ||
        fail "$package has odd permissions or owners"
done
[ "$(field "$runtime" Package)" = ocl-tarn-k1 ] && [ "$(field "$development" Package)" = ocl-tarn-k1-dev ] || fail "odd names"
[ "$(dpkg-deb -I "$runtime" triggers)" = "activate-noawait ldconfig" ] || fail "the loader's cache is not told"
# The libraries need nothing at all; the tools what they are linked to, and the libraries of their own version.
[ -z "$(field "$runtime" Depends)" ] || fail "the libraries depend on $(field "$runtime" Depends)"
[[ $(field "$development" Depends) == *"ocl-tarn-k1 (= $version)"* && $(field "$development" Depends) == *libc6* ]] ||
    fail "the other package depends on $(field "$development" Depends)"

# Files. Documents and examples are as many as the tree has.
list() { (cd "$1" && find . ! -type d | sed 's|^\./usr/||' | LC_ALL=C sort); }
list "$runtime.tree" > files
diff - files <<TXT || fail "other files than these are in ocl-tarn-k1"
lib/__ocl_tarn_k1.so
lib/glibc-hwcaps/x86-64-v3/__ocl_tarn_k1.so
lib/glibc-hwcaps/x86-64-v3/libtarn.so.1
lib/glibc-hwcaps/x86-64-v3/libtarn.so.$version
lib/libtarn.so.1
lib/libtarn.so.$version
share/ocl_tarn_k1/exports.json
share/ocl_tarn_k1/exports.schema.json
TXT
list "$development.tree" | grep -v '^share/doc/ocl_tarn_k1/\(docs\|examples\)/' > files
diff - files <<TXT || fail "other files than these are in ocl-tarn-k1-dev"
bin/tarn-bench
bin/tarn-eval
bin/tarn-exports
bin/tarn-ulp
include/ocl_tarn_k1.cl.h
include/ocl_tarn_k1.h
include/tarn.h
include/tarn_simd.h
lib/cmake/ocl_tarn_k1/ocl_tarn_k1-config-version.cmake
lib/cmake/ocl_tarn_k1/ocl_tarn_k1-config.cmake
lib/cmake/ocl_tarn_k1/ocl_tarn_k1-targets-release.cmake
lib/cmake/ocl_tarn_k1/ocl_tarn_k1-targets.cmake
lib/libocl_tarn_k1.a
lib/libtarn.a
lib/libtarn.so
lib/pkgconfig/ocl_tarn_k1.pc
lib/pkgconfig/ocl_tarn_k1_static.pc
lib/pkgconfig/tarn.pc
share/doc/ocl_tarn_k1/CHANGELOG.md
share/doc/ocl_tarn_k1/README.md
TXT
(cd "$source" && find docs examples -type f | LC_ALL=C sort) > wanted
(cd root/usr/share/doc/ocl_tarn_k1 && find docs examples -type f | LC_ALL=C sort) | diff wanted - || fail "other documents than the tree's"

# Programs, from the tree that the packages unpack to.
lib=$work/root/usr/lib
says() {  # PROGRAM...
    "$@" > output || fail "fails: $*"
    grep -q 'exp(1) = 2.7182819' output || fail "$* does not say what it ought to"
}
mkdir user
cat > user/CMakeLists.txt <<TXT
cmake_minimum_required(VERSION 3.25)
project(user C)
find_package(ocl_tarn_k1 $version REQUIRED COMPONENTS tarn)
foreach(library ocl_tarn_k1 static)
  add_executable(call_\${library} "$source/examples/call.c")
  target_link_libraries(call_\${library} PRIVATE ocl_tarn_k1::\${library})
endforeach()
foreach(library tarn tarn_static)
  add_executable(arrays_\${library} "$source/examples/arrays.c")
  target_link_libraries(arrays_\${library} PRIVATE ocl_tarn_k1::\${library})
endforeach()
TXT
{ cmake -S user -B user/build -DCMAKE_PREFIX_PATH="$work/root/usr" && cmake --build user/build; } >log 2>&1 || { tail -n 20 log; exit 1; }
for program in call_ocl_tarn_k1 call_static arrays_tarn arrays_tarn_static; do says "user/build/$program"; done

export PKG_CONFIG_PATH=$lib/pkgconfig
flags() { pkg-config --cflags --libs "$@"; }
[ "$(pkg-config --modversion tarn)" = "$version" ] || fail "pkg-config has another version"
# shellcheck disable=SC2046
{
    cc "$source/examples/arrays.c" $(flags tarn) -Wl,-rpath,"$lib" -o shared
    cc -static "$source/examples/arrays.c" $(flags --static tarn) -o alone
    cc "$source/examples/call.c" $(flags ocl_tarn_k1) -Wl,-rpath,"$lib" -o call
    cc -static "$source/examples/call.c" $(flags ocl_tarn_k1_static) -o call_alone
}
for program in shared alone call call_alone; do says "./$program"; done
readelf -d alone call_alone | grep -q NEEDED && fail "a static program needs libraries"

# Both archives in one program; the macros of both headers are the package's version.
cat > both.c <<'C'
#include <ocl_tarn_k1.h>
#include <stdio.h>
#include <tarn.h>
int main(void) {
    float x = 1.0f, r;
    tarn_powf(1, &x, &x, &r);
    printf("exp(1) = %.9g %g\n%d.%d.%d\n", __ocl_tarn_k1_expf1(1.0f), __ocl_tarn_k1_powf1(r, 2.0f), TARN_VERSION_MAJOR,
           TARN_VERSION_MINOR, TARN_VERSION_PATCH);
}
C
cc -Wall -Werror -I root/usr/include both.c "$lib/libtarn.a" "$lib/libocl_tarn_k1.a" -o both
says ./both
grep -qx "$version" output || fail "the headers are of another version"

# Tools run from where they are unpacked, with the module there.
root/usr/bin/tarn-eval expf4 1 2 3 4 > output || fail "tarn-eval fails"
cp -r root elsewhere
rm elsewhere/usr/lib/__ocl_tarn_k1.so elsewhere/usr/lib/glibc-hwcaps/x86-64-v3/__ocl_tarn_k1.so
code=0; elsewhere/usr/bin/tarn-eval expf4 1 2 3 4 >output 2>&1 || code=$?
[ "$code $(wc -l < output)" = "2 1" ] || { cat output; fail "a missing module is not told in one line"; }
echo "packages: $(basename "$runtime") $(du -h "$runtime" | cut -f1), $(basename "$development") $(du -h "$development" | cut -f1)"
