#!/usr/bin/env bash
# Checks the kit as a developer would use it: both DLLs are of their
# architecture and export the classes, and the minimal sample, built with
# CMake from the kit alone, runs under Wine for each architecture and writes
# its picture.
# Usage: scripts/test-sdk.sh SDK
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
root="$(cd "$here/.." && pwd)"
out="$(cd "${1:-build/sdk}" && pwd)"
kit="$out/ZPXGraph"
fail=0

for arch in x86 x64; do
    dll="$kit/bin/$arch/ZPXGraph.dll"
    magic="PE32+"; objdump=x86_64-w64-mingw32-objdump; toolchain=mingw-w64.cmake
    if [ "$arch" = x86 ]; then magic="PE32)"; objdump=i686-w64-mingw32-objdump; toolchain=mingw-w64-i686.cmake; fi
    header="$($objdump -p "$dll")"
    if ! grep -q "Magic.*($magic" <<<"$header"; then
        echo "sdk test: $dll is not $magic" >&2; fail=1
    fi
    for name in 6CGraph 9CGraphPrv 10CLineColor InitializeZPXGraph; do
        grep -q "$name" <<<"$header" || { echo "sdk test: $dll does not export $name" >&2; fail=1; }
    done

    # The sample from the kit alone: its include path is the kit's.
    sample="$out/sample-$arch"
    rm -rf "$sample"
    cmake -S "$kit/samples/minimal" -B "$sample" -DCMAKE_TOOLCHAIN_FILE="$root/cmake/$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DZPXGraph_DIR="$kit/cmake" >/dev/null
    cmake --build "$sample" >/dev/null
    picture="$sample/minimal.bmp"
    (cd "$sample" && "$here/withdisplay.sh" wine ./minimal.exe --picture minimal.bmp)
    size=$(stat -c %s "$picture" 2>/dev/null || echo 0)
    if [ "$size" -lt 100000 ]; then
        echo "sdk test: the $arch sample wrote no picture" >&2; fail=1
    else
        echo "sdk test: $arch sample picture $picture ($size bytes)"
    fi
done
exit $fail
