#!/usr/bin/env bash
# Runs every test program through CTest under Wine, with a display. The
# tests run under the Chinese locale (ANSI code page 936), the language of
# the library's own resources.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
build="${1:-build}"
cd "$build"
# (set through env so that no shell of ours needs the glibc locale itself)
exec "$here/withdisplay.sh" env LC_ALL=zh_CN.UTF-8 ctest --output-on-failure --timeout 300
