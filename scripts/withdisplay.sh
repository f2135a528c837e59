#!/usr/bin/env bash
# Runs a command with a display and a running Wine server: under xvfb-run
# when there is no X display, directly otherwise. The Wine server is started
# once and stopped at the end, so each program in between starts quickly.
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
. "$here/wineenv.sh"

if [ -z "${DISPLAY:-}" ] && [ -z "${ZPX_IN_XVFB:-}" ]; then
    export ZPX_IN_XVFB=1
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$@"
fi

# Under a display of our own, a Wine server of this prefix left from another
# display would keep the desktop window there, and menus made here would go
# astray: it is stopped first. Then start a persistent server unless one runs
# already (then it is someone else's, on this display, and it stays when we
# are done). `wineserver -k0` only probes: it sends no signal, and it sees
# the server of this prefix alone, so runs with other prefixes are left be.
if [ -n "${ZPX_IN_XVFB:-}" ] && wineserver -k0 >/dev/null 2>&1; then
    wineserver -k >/dev/null 2>&1 || true
    wineserver -w >/dev/null 2>&1 || true
fi
if ! wineserver -k0 >/dev/null 2>&1; then
    wineserver -p
    trap 'wineserver -k >/dev/null 2>&1 || true' EXIT
fi
# Start Wine's own background processes (services, the desktop window) now,
# detached from our output: a test runner waits for every process that holds
# its pipes, and these would live on after the test that started them.
wine cmd /c exit >/dev/null 2>&1 </dev/null || true
status=0
"$@" || status=$?
exit $status
