#!/usr/bin/env bash
# Starts the demo host. Without a display of its own it runs under Xvfb,
# renders its graph into a picture file and exits by itself.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build}"
cd "$build/bin"
if [ -z "${DISPLAY:-}" ]; then
    exec "$here/withdisplay.sh" wine ./graphdemo.exe --headless
fi
exec "$here/withdisplay.sh" wine ./graphdemo.exe
