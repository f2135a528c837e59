#!/usr/bin/env bash
# Builds nothing itself: runs the benchmark program that `make bench` built.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build}"
cd "$build/bin"
exec "$here/withdisplay.sh" wine ./graphbench.exe
