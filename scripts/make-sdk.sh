#!/usr/bin/env bash
# Lays out the developer's kit from the 64-bit and the 32-bit build:
#   include/       the public headers (those a host includes, and what they include)
#   lib/x86, x64   the import libraries
#   bin/x86, x64   ZPXGraph.dll with its satellite folders (and, for x86, the
#                  compiler's runtime libraries it needs)
#   cmake/         the CMake package: find_package(ZPXGraph CONFIG REQUIRED)
#   samples/       the smallest complete host
# and packs it as ZPXGraph-sdk.zip beside the folder.
# Usage: scripts/make-sdk.sh BUILD64 BUILD32 OUT
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build64="$(cd "${1:-build}" && pwd)"
build32="$(cd "${2:-build-x86}" && pwd)"
out="${3:-build/sdk}"
mkdir -p "$out"
out="$(cd "$out" && pwd)"
kit="$out/ZPXGraph"
rm -rf "$kit" "$out/ZPXGraph-sdk.zip"
mkdir -p "$kit/include" "$kit/lib" "$kit/bin" "$kit/cmake" "$kit/samples"

# The headers a host includes, and every header of this tree they pull in.
entries="graph/Graph.h graph/GraphPrv.h afx/afxprop.h afx/afxdialog.h afx/afxapp.h afx/afxdlgs.h
         afx/afxcmn.h sheet/BasePropSheet.h resources/resource.h"
probe="$(mktemp --suffix=.cpp)"
for h in $entries; do echo "#include \"$h\"" >> "$probe"; done
x86_64-w64-mingw32-g++-posix -std=c++17 -I "$root" -MM -MT probe "$probe" \
    | tr -d '\\' | tr ' ' '\n' | grep "^$root/" | sort -u | while read -r header; do
    rel="${header#"$root"/}"
    mkdir -p "$kit/include/$(dirname "$rel")"
    cp "$header" "$kit/include/$rel"
done
rm -f "$probe"

for arch in x64 x86; do
    build="$build64"
    [ "$arch" = x86 ] && build="$build32"
    mkdir -p "$kit/lib/$arch" "$kit/bin/$arch"
    cp "$build/lib/ZPXGraph.lib.a" "$kit/lib/$arch/"
    cp "$build/bin/ZPXGraph.dll" "$kit/bin/$arch/"
    cp -r "$build/bin/0409" "$kit/bin/$arch/"
    for dll in libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll; do
        [ -f "$build/bin/$dll" ] && cp "$build/bin/$dll" "$kit/bin/$arch/"
    done
done

cp "$root/sdk/cmake/"*.cmake "$kit/cmake/"
cp -r "$root/sdk/samples/minimal" "$kit/samples/"
cp "$root/sdk/README.md" "$kit/README.md"

(cd "$out" && cmake -E tar cf ZPXGraph-sdk.zip --format=zip ZPXGraph)
echo "sdk: $kit"
echo "sdk: $out/ZPXGraph-sdk.zip"
