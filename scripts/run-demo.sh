#!/usr/bin/env bash
# Starts the demo host. Without a display of its own it runs under Xvfb,
# drives its window, writes its pictures and exits by itself.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build}"
cd "$build/bin"
if [ -n "${DISPLAY:-}" ]; then
    exec "$here/withdisplay.sh" wine ./graphdemo.exe
fi
"$here/withdisplay.sh" wine ./graphdemo.exe --headless
for name in graphdemo graphdemo-bitmap graphdemo-window graphdemo-sheet graphdemo-properties; do
    for picture in "$name.png" "$name.bmp"; do
        if [ -f "$picture" ]; then
            echo "demo: picture $(pwd)/$picture"
            break
        fi
    done
done
