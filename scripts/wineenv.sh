# Sourced by the scripts: the environment every Wine process of this project runs in.
export WINEPREFIX="${ZPX_WINEPREFIX:-$HOME/.wine-zpxgraph}"
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="
export WINEARCH=win64
