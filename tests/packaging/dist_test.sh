#!/usr/bin/env bash
# Uses the packages of scripts/dist.sh like a user: dist_test.sh FOLDER. dpkg installs the Debian packages into a root
# of their own; the zips run under Wine, also with a program linked by LLVM's linker.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$here/../..
dist=$(cd "$1" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "dist: $*" >&2; exit 1; }

shows_the_sample() {
  "$@" "$top/samples/call.pcap" >"$work/shown" || fail "$* fails"
  cmp -s "$work/shown" "$work/expected" || fail "$* shows other lines than the viewer of the build"
}

debian_packages() {
  local root=$work/root
  mkdir -p "$root/var/lib/dpkg/"{info,updates} "$root/var/log"
  touch "$root/var/lib/dpkg/status"
  # The root holds nothing else, so this machine provides the dependencies.
  dpkg --root="$root" --force-depends --force-not-root --force-script-chrootless --log="$work/dpkg.log" \
    -i "$dist"/*.deb >/dev/null 2>&1 || fail "dpkg does not install the packages"
  local package
  for package in $(dpkg-deb -f "$dist"/kelvra-dump_*.deb Depends | tr ',' '\n' | sed 's/(.*)//; s/|.*//'); do
    dpkg-query -W "$package" >/dev/null || fail "kelvra-dump depends on $package, which nobody has"
  done
  shows_the_sample "$root/usr/bin/kelvra-dump"
  local libraries
  libraries=$(dirname "$(find "$root" -name 'libkelvra.so.1')")
  g++ -std=c++17 -I"$root/usr/include" "$here/consumer.cpp" -L"$(dirname "$(find "$root" -name libkelvra.so)")" \
    -L"$libraries" -lkelvra -o "$work/consumer"
  LD_LIBRARY_PATH=$libraries "$work/consumer" >/dev/null || fail "a program linked with the Debian packages fails"
}

tarball() {
  tar -C "$work" -xzf "$dist"/kelvra-*-linux-x64.tar.gz
  shows_the_sample "$(echo "$work"/kelvra-*-linux-x64)/bin/kelvra-dump"
}

# Compiles a program with Clang for the Windows formats and links it with LLVM's linker.
links_for_windows() {
  local folder=$1 target=$2
  clang --target="$target" -ffreestanding -std=c99 -O1 -I"$folder/include" -c "$here/by_windows_linker.c" \
    -o "$work/by_windows_linker.obj"
  lld-link /nologo /entry:start /subsystem:console /nodefaultlib "/out:$folder/bin/by_lld.exe" \
    "$work/by_windows_linker.obj" "$folder/lib/kelvra.lib"
  "$top/scripts/wine.sh" "$folder/bin/by_lld.exe" || fail "${folder##*/}: a program linked by LLVM's linker fails"
}

windows_zip() {
  local name=$1 mingw=$2 target=$3 folder
  unzip -q "$dist"/kelvra-*-"$name".zip -d "$work"
  folder=$(echo "$work"/kelvra-*-"$name")
  (cd "$folder" && sha256sum --quiet -c SHA256SUMS) || fail "$name: a checksum is wrong"
  shows_the_sample "$top/scripts/wine.sh" "$folder/bin/kelvra-dump.exe"
  "$mingw-g++-posix" -std=c++17 -static -I"$folder/include" "$here/consumer.cpp" "$folder/lib/libkelvra.dll.a" \
    -o "$folder/bin/by_mingw.exe"
  "$top/scripts/wine.sh" "$folder/bin/by_mingw.exe" >/dev/null || fail "$name: a program linked by MinGW fails"
  links_for_windows "$folder" "$target"
  # The same octets as from another build, where there is one.
  local other=$top/build/dist-$name/bin/kelvra.dll
  [[ -e $other ]] || return 0
  "$mingw-objcopy" --strip-all "$other" "$work/a.dll"
  "$mingw-objcopy" --strip-all --remove-section=.gnu_debuglink "$folder/bin/kelvra.dll" "$work/b.dll"
  cmp -s "$work/a.dll" "$work/b.dll" || fail "$name: two builds of kelvra.dll differ"
}

"$top/build/linux-x64/bin/kelvra-dump" "$top/samples/call.pcap" >"$work/expected"
(cd "$dist" && sha256sum --quiet -c SHA256SUMS) || fail "a checksum is wrong"
debian_packages
tarball
windows_zip windows-x86 i686-w64-mingw32 i686-pc-windows-msvc
windows_zip windows-x64 x86_64-w64-mingw32 x86_64-pc-windows-msvc
! grep -rqF "$(cd "$top" && pwd)" "$work" || fail "a folder of this machine stands in a package"
echo "dist: all packages can be used"
