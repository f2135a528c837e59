#!/usr/bin/env bash
# Prepares this machine to build and run ZPXGraph: Debian packages, then a
# Wine prefix with the font replacements the library's resources need.
# Every step is skipped when it is already done, so this runs before every
# build at little cost.
set -euo pipefail

PACKAGES="cmake make g++-mingw-w64-x86-64 wine wine64 xvfb xauth fonts-wine fonts-wqy-zenhei googletest procps"

missing=""
for p in $PACKAGES; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
    echo "setup: installing$missing"
    SUDO=""
    [ "$(id -u)" -ne 0 ] && SUDO="sudo"
    $SUDO apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends $missing
fi

# shellcheck source=scripts/wineenv.sh
. "$(dirname "$0")/wineenv.sh"

# Bump when the prefix settings below change: existing prefixes get them too.
stamp="$WINEPREFIX/.zpxgraph-settings-2"
if [ ! -f "$stamp" ]; then
    echo "setup: preparing the Wine prefix $WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    wineboot -i >/dev/null 2>&1 || true
    wineserver -w || true
    # SimSun (宋体) does not exist here: map both of its names to WenQuanYi.
    # Windows are not handed to a window manager: there is none under Xvfb,
    # and waiting for one costs two seconds at every hidden window.
    reg="$(mktemp --suffix=.reg)"
    { printf '\xff\xfe'; printf 'Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]\r\n"\xe5\xae\x8b\xe4\xbd\x93"="WenQuanYi Zen Hei"\r\n"SimSun"="WenQuanYi Zen Hei"\r\n\r\n[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]\r\n"Managed"="N"\r\n' | iconv -f UTF-8 -t UTF-16LE; } > "$reg"
    wine regedit /S "$(winepath -w "$reg")" >/dev/null 2>&1
    wineserver -w || true
    rm -f "$reg"
    grep -q 'WenQuanYi' "$WINEPREFIX/user.reg" || { echo "setup: font replacement was not written" >&2; exit 1; }
    grep -q '"Managed"="N"' "$WINEPREFIX/user.reg" || { echo "setup: window settings were not written" >&2; exit 1; }
    touch "$stamp"
fi
