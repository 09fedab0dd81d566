#!/usr/bin/env bash
# Runs a Windows program under Wine, in a prefix of the build.
set -euo pipefail

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=${WINEPREFIX:-$top/build/wine-prefix}
# Shows errors, but not unimplemented functions.
export WINEDEBUG=${WINEDEBUG:-fixme-all}
# Neither .NET nor a browser engine: Wine would ask to download them.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}
# No test opens a window.
unset DISPLAY WAYLAND_DISPLAY

# The server and its services start on demand and stay for a minute after the last program. They would inherit the
# output of the program that started them, and its reader would wait for their end; a program that starts while they
# shut down may fail.
start_server() {
  local ready=$WINEPREFIX/.ready log=$WINEPREFIX.log
  if wineserver -p60 2>/dev/null || [[ ! -e $ready ]]; then  # else one runs
    wine wineboot --init </dev/null >"$log" 2>&1 || { cat "$log" >&2; return 1; }
    touch "$ready"
  fi
}

# Reads the machine type in the PE header.
is_64_bit() {
  local header
  header=$(od -An -tu4 -j60 -N4 "$1" 2>/dev/null) && [[ $(od -An -tx2 -j$((header + 4)) -N2 "$1") == " 8664" ]]
}

mkdir -p "$WINEPREFIX"
# Only one of several parallel programs may start it.
exec 9>"$WINEPREFIX.lock"
flock 9
start_server 9>&-
exec 9>&-

# Debian's `wine` starts a 64-bit program through the 32-bit loader, which takes four times as long.
loader=/usr/lib/wine/wine64
if ! [[ -x $loader ]] || ! is_64_bit "$1"; then
  loader=wine
fi
exec "$loader" "$@"
