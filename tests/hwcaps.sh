#!/usr/bin/env bash
# Installs both builds into one prefix: the C library's loader picks the module and the libtarn for x86-64-v3 by itself
# where the processor is of that level, and the plain ones elsewhere.   hwcaps.sh PLAIN-BUILD V3-BUILD SOURCE-DIRECTORY
set -euo pipefail
plain=$1 v3=$2 source=$3
version=$(getconf GNU_LIBC_VERSION) || version=
[[ $version == glibc\ * && $(printf '%s\n' 2.33 "${version#glibc }" | sort -V | head -n 1) == 2.33 ]] ||
    { echo "skipped: the C library is ${version:-another one}; subdirectories of processor levels came with glibc 2.33"; exit 77; }

work=$(mktemp -d); trap 'rm -rf "$work"' EXIT
prefix="$work/a prefix"
# Beside the plain libraries the other build brings its own alone.
cmake --install "$v3" --prefix "$prefix" >/dev/null
installed=$(cd "$prefix" && find . ! -type d | LC_ALL=C sort)
level=$(cd "$prefix" && find . -name x86-64-v3)
[[ $level == ./lib*/glibc-hwcaps/x86-64-v3 && $installed == "$level/__ocl_tarn_k1.so
$level/libtarn.so.1
$level/libtarn.so.1."* && $(wc -l <<< "$installed") == 3 ]] || { echo "$v3 installs: $installed"; exit 1; }
directory=$(realpath "$prefix/$level/../..")
cmake --install "$plain" --prefix "$prefix" >/dev/null

# Says which file a program has, linked or by its bare name, and what one call gives.
cat > "$work/which.c" <<'C'
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
int main(int argc, char** argv) {
    void* module = argc > 1 ? dlopen(argv[1], RTLD_NOW) : RTLD_DEFAULT;
    float (*expf1)(float);
    Dl_info info;
    if (argc > 1 && !module) return fprintf(stderr, "%s\n", dlerror()), 1;
    *(void**)&expf1 = dlsym(module, "__ocl_tarn_k1_expf1");
    if (!expf1 || !dladdr(*(void**)&expf1, &info)) return fprintf(stderr, "no module\n"), 1;
    printf("%s %a\n", info.dli_fname, (double)expf1(0.3f));
}
C
cc "$work/which.c" -o "$work/linked" -Wl,--no-as-needed "$directory/__ocl_tarn_k1.so" "-Wl,-rpath,$directory" -ldl
cc "$work/which.c" -o "$work/run_path" "-Wl,-rpath,$directory" -ldl
cc "$work/which.c" -o "$work/neither" -ldl

loader=$(readelf -lW "$work/neither" | sed -n 's/.*interpreter: \(.*\)]/\1/p')
name=__ocl_tarn_k1.so usual=__ocl_tarn_k1.so value=
if "$source/scripts/has-x86-64-v3"; then usual=glibc-hwcaps/x86-64-v3/$name; else echo "a processor below x86-64-v3: the plain module is the one"; fi
loads() {  # FILE COMMAND...
    local said file
    said=$("${@:2}")
    file=$(realpath "${said% *}")
    [ "$file" = "$(realpath "$directory/$1")" ] || { echo "loads $file instead of $1: ${*:2}"; exit 1; }
    [ "${value:=${said##* }}" = "${said##* }" ] || { echo "$file gives ${said##* }, not $value"; exit 1; }
}
loads $usual "$work/linked"
loads $usual "$work/run_path" $name
loads $usual env LD_LIBRARY_PATH="$directory" "$work/neither" $name
# The same programs where the loader is told that the processor is of no higher level.
loads $name "$loader" --glibc-hwcaps-mask none "$work/linked"
loads $name "$loader" --glibc-hwcaps-mask none "$work/run_path" $name
loads $name "$loader" --glibc-hwcaps-mask none --library-path "$directory" "$work/neither" $name
# libtarn, linked as its users link it.
cat > "$work/array.c" <<'C'
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>
#include <tarn.h>
int main(void) {
    float x = 0.3f;
    Dl_info info;
    tarn_expf(1, &x, &x);
    if (!dladdr((void*)tarn_expf, &info)) return 1;
    printf("%s %a\n", info.dli_fname, (double)x);
}
C
cc -I"$prefix/include" "$work/array.c" -o "$work/array" -L"$directory" -ltarn "-Wl,-rpath,$directory" -ldl
loads "${usual%"$name"}libtarn.so.1" "$work/array"
loads libtarn.so.1 "$loader" --glibc-hwcaps-mask none "$work/array"
# Without the plain module beside it nothing is missing either.
rm "$directory/$name"
[ $usual = $name ] || loads $usual "$work/linked"
echo "loaded: $usual, and $name where the level is masked; so is libtarn"
