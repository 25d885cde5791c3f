# For the scripts that run the declarations of docs/abi.md: the page's block of a convention, and clang on IR.

declarations() {  # SOURCE_DIR CONVENTION
    awk -v first="; $2" '/^```/ { if (inside) exit; fence = $0 == "```llvm"; next }
                         fence && $0 == first { inside = 1 } inside' "$1/docs/abi.md"
}

# LLVM 14 reads pointers without types when it is asked to, LLVM 17 knows no others.
clang_on_ir() {
    clang -Wno-override-module "$@" 2>/dev/null || clang -Wno-override-module -mllvm -opaque-pointers "$@"
}
