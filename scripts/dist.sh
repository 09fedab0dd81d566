#!/usr/bin/env bash
# Makes the packages in build/dist: Debian packages, a tarball for Linux, a zip for each Windows, and SHA256SUMS.
#
#   scripts/dist.sh [linux-x64|windows-x86|windows-x64]...
#   scripts/dist.sh --of-tests
#
# The latter packs what scripts/test.sh has built, which has the same code and less debug information.
#
# The octets depend only on the sources and the compilers; their dates are that of the last commit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

all_targets=(linux-x64 windows-x86 windows-x64)
presets=dist-
if [[ ${1:-} == --of-tests ]]; then
  presets=
  shift
fi
targets=("$@")
[[ $# -gt 0 ]] || targets=("${all_targets[@]}")
dist=$PWD/build/dist
version=$(sed -n 's/^project(kelvra VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 0)}
export SOURCE_DATE_EPOCH TZ=UTC

build() {
  [[ -n $presets ]] || return 0
  cmake --preset "dist-$1" >/dev/null
  cmake --build --preset "dist-$1" --parallel "$(nproc)"
  # An archive cannot keep its debug information in a separate file.
  strip --strip-debug "build/dist-$1/lib/libkelvra.a"
}

# Installs the build into a folder, its debug information into a second folder next to it: stage TARGET FOLDER TOOLS
stage() {
  local folder=$2 objcopy=$3objcopy file
  rm -rf "$folder" "$folder-debug"
  mkdir -p "$folder-debug"
  cmake --install "build/$presets$1" --prefix "$folder" >/dev/null
  while IFS= read -r file; do
    "$objcopy" --only-keep-debug "$file" "$folder-debug/${file##*/}.debug"
    "$objcopy" --strip-unneeded "$file"
    (cd "$folder-debug" && "$objcopy" --add-gnu-debuglink="${file##*/}.debug" "$file")
  done < <(find "$folder" -type f \( -name '*.so.*' -o -name '*.dll' -o -path '*/bin/*' \))
}

linux_packages() {
  local name=kelvra-$version-linux-x64
  stage linux-x64 "$dist/$name" ""
  (cd "build/${presets}linux-x64" && cpack -G DEB -B "$dist" >/dev/null)
  rm -rf "$dist/_CPack_Packages"
  local folder
  for folder in "$name" "$name-debug"; do
    tar -C "$dist" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" -cf - "$folder" |
      gzip -9n >"$dist/$folder.tar.gz"
  done
}

windows_package() {
  local name=kelvra-$version-$1 triple=i686-w64-mingw32 machine=i386
  [[ $1 == windows-x86 ]] || { triple=x86_64-w64-mingw32 machine=i386:x86-64; }
  stage "$1" "$dist/$name" "$triple-"
  cp README.md CHANGELOG.md "$dist/$name/"
  # The import libraries for linkers that use the Windows format.
  local def library
  for def in src/api/kelvra.def tools/library/kelvra_text.def; do
    library=$(basename "$def" .def)
    cp "$def" "$dist/$name/lib/"
    llvm-dlltool -m "$machine" -D "$library.dll" -d "$def" -l "$dist/$name/lib/$library.lib"
  done
  (cd "$dist/$name" && find . -type f ! -name SHA256SUMS -printf '%P\0' | sort -z | xargs -0 sha256sum >SHA256SUMS)
  local folder
  for folder in "$name" "$name-debug"; do
    find "$dist/$folder" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
    rm -f "$dist/$folder.zip"
    (cd "$dist" && find "$folder" -type f | sort | zip -9Xq "$folder.zip" -@)
  done
}

rm -rf "$dist"
mkdir -p "$dist"
for target in "${targets[@]}"; do
  build "$target"
  case $target in
    linux-x64) linux_packages ;;
    windows-*) windows_package "$target" ;;
  esac
done
find "$dist" -mindepth 1 -maxdepth 1 -type d -exec rm -rf {} +
cd "$dist"
find . -type f ! -name SHA256SUMS -printf '%P\n' | sort | xargs sha256sum >SHA256SUMS
cat SHA256SUMS
