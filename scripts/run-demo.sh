#!/usr/bin/env bash
# Starts the demo host. Without a display of its own it runs under Xvfb,
# renders its graph into a picture file and exits by itself.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build}"
cd "$build/bin"
if [ -n "${DISPLAY:-}" ]; then
    exec "$here/withdisplay.sh" wine ./graphdemo.exe
fi
"$here/withdisplay.sh" wine ./graphdemo.exe --headless
for picture in graphdemo.png graphdemo.bmp; do
    if [ -f "$picture" ]; then
        echo "demo: the picture of the graph is $(pwd)/$picture"
        break
    fi
done
