#!/usr/bin/env bash
# Runs a Windows program under Wine, in a prefix of the build's own.
set -euo pipefail

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$top/build/wine-prefix}
export WINEDEBUG=${WINEDEBUG:--all}
# Neither .NET nor a browser engine: Wine would ask to download them.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
# No test opens a window.
unset DISPLAY WAYLAND_DISPLAY

ready=$WINEPREFIX/.ready
if [[ ! -e $ready ]]; then
  # Programs that start together must not all set the prefix up.
  mkdir -p "$WINEPREFIX"
  (
    flock 9
    if [[ ! -e $ready ]]; then
      wineboot -i >&2
      touch "$ready"
    fi
  ) 9>"$WINEPREFIX.lock"
fi

exec wine "$@"
