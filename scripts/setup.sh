#!/usr/bin/env bash
# Prepares this machine to build and run ZPXGraph for 64-bit and 32-bit
# Windows: Debian packages (both cross compilers, both sides of Wine), then a
# Wine prefix with the font replacements the library's resources need.
# Every step is skipped when it is already done, so this runs before every
# build at little cost.
set -euo pipefail

PACKAGES="cmake make g++-mingw-w64-x86-64 g++-mingw-w64-i686-posix wine wine64 wine32:i386 xvfb xauth fonts-wine fonts-wqy-zenhei googletest procps binutils-mingw-w64-i686"

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"

# The 32-bit build runs its tests on the 32-bit side of Wine.
if ! dpkg --print-foreign-architectures | grep -qx i386; then
    echo "setup: adding the i386 architecture"
    $SUDO dpkg --add-architecture i386
fi

missing=""
for p in $PACKAGES; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
    echo "setup: installing$missing"
    # A mirror in the middle of a sync can fail one index for a while: a
    # failed update is tried again, then the install goes on with what came.
    for attempt in 1 2 3; do
        $SUDO apt-get update -qq && break
        echo "setup: package index update failed (attempt $attempt)" >&2
        sleep 5
    done
    apt_install() { DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "$@"; }
    # shellcheck disable=SC2086
    if ! apt_install $missing; then
        # Without the newest index of one architecture, libraries shared by
        # both (Multi-Arch: same) cannot match: take both from the release.
        echo "setup: installing from the release alone" >&2
        pin="$(mktemp)"
        printf 'Package: *\nPin: release n=%s\nPin-Priority: 1001\n' "$(. /etc/os-release && echo "$VERSION_CODENAME")" > "$pin"
        # shellcheck disable=SC2086
        apt_install -o Dir::Etc::Preferences="$pin" --allow-downgrades $missing
        rm -f "$pin"
    fi
fi

# shellcheck source=scripts/wineenv.sh
. "$(dirname "$0")/wineenv.sh"

# A prefix made before the 32-bit side of Wine was installed cannot run
# 32-bit programs: it is made anew.
if [ -d "$WINEPREFIX/drive_c/windows" ] && [ ! -f "$WINEPREFIX/drive_c/windows/syswow64/kernel32.dll" ]; then
    echo "setup: the Wine prefix $WINEPREFIX has no 32-bit side; making it anew"
    wineserver -k 2>/dev/null || true
    rm -rf "$WINEPREFIX"
fi

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
