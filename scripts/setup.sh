#!/usr/bin/env bash
# Installs the packages that a fresh Debian 12 lacks for `make demo` or `make test`.
#
#   scripts/setup.sh demo   build tools and the viewer's libraries (native x64)
#   scripts/setup.sh lint   the above, clang-format and clang-tidy
#   scripts/setup.sh test   the above, the cross compilers, GoogleTest and Wine
#   scripts/setup.sh bench  build tools, Google Benchmark, valgrind and gnuplot
#
# It does nothing if nothing is missing. If Wine cannot be installed, it reports that but does not fail: scripts/test.sh
# then lists the Windows targets as skipped, and fails in CI.
set -euo pipefail

demo_packages=(
  cmake ninja-build make g++
  libcli11-dev nlohmann-json3-dev zlib1g-dev
)
test_packages=(
  googletest libbenchmark-dev pkg-config binutils clang libclang-rt-14-dev python3 python3-jsonschema valgrind man-db
  g++-multilib lib32z1-dev
  g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix libz-mingw-w64-dev
  dpkg-dev lld llvm unzip zip
  chromium chromium-driver
  python3-pip python3-setuptools python3-wheel jq sqlite3
)
bench_packages=(cmake ninja-build make g++ libbenchmark-dev valgrind gnuplot-nox python3)
wine_packages=(wine wine64 wine32:i386)
lint_packages=(clang-format clang-tidy)

say() { printf 'setup: %s\n' "$*"; }

# Prints the given packages that are not installed, one per line.
missing() {
  local package
  for package in "$@"; do
    if [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]]; then
      printf '%s\n' "$package"
    fi
  done
}

as_root() {
  if [[ "$(id -u)" -eq 0 ]]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    say "cannot install packages: neither root nor sudo here" >&2
    return 1
  fi
}

# `env` carries the setting through sudo, which would drop the variable.
apt() { as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@"; }
install_packages() { apt install --no-install-recommends "$@"; }

updated=no
update_once() {
  if [[ $updated == no ]]; then
    # A package list that cannot be fetched must not block packages in the others; if it matters, the installation fails
    # and says so.
    apt update || say "not every package list could be updated"
    updated=yes
  fi
}

install_wine() {
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    say "adding the i386 architecture, which 32-bit Wine needs"
    as_root dpkg --add-architecture i386
    updated=no  # the i386 package lists are not there yet
  fi
  update_once
  install_packages "$@" && return 0

  # The i386 list of security updates can lag behind that of amd64. Packages that need the same version on both
  # architectures then resolve only without the security updates, hence the pin for this one call.
  say "retrying Wine without the security updates, which can downgrade libraries"
  say "after apt-get update can fetch all lists, apt-get upgrade updates them again"
  local pins status=0
  pins=$(mktemp)
  chmod 644 "$pins"
  printf 'Package: *\nPin: release l=Debian-Security\nPin-Priority: -1\n' >"$pins"
  # With a priority up to 1000, apt never downgrades a dependency by itself.
  printf '\nPackage: *\nPin: release l=Debian\nPin-Priority: 1001\n' >>"$pins"
  apt install --no-install-recommends --allow-downgrades \
    -o "Dir::Etc::preferences=$pins" "$@" || status=$?
  rm -f "$pins"
  return "$status"
}

main() {
  local mode=${1:-test} wanted=() lacking=() wine_lacking=()
  case $mode in
    demo) wanted=("${demo_packages[@]}") ;;
    test) wanted=("${demo_packages[@]}" "${test_packages[@]}" "${lint_packages[@]}") ;;
    bench) wanted=("${bench_packages[@]}") ;;
    lint) wanted=("${demo_packages[@]}" "${lint_packages[@]}") ;;
    *)
      echo "usage: scripts/setup.sh [demo|test|bench|lint]" >&2
      return 2
      ;;
  esac

  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    say "this is no Debian; install the equivalents of: ${wanted[*]}" >&2
    return 1
  fi

  mapfile -t lacking < <(missing "${wanted[@]}")
  if [[ $mode == test ]]; then
    mapfile -t wine_lacking < <(missing "${wine_packages[@]}")
  fi
  if [[ ${#lacking[@]} -eq 0 && ${#wine_lacking[@]} -eq 0 ]]; then
    say "nothing is missing"
    return 0
  fi

  say "installing: ${lacking[*]} ${wine_lacking[*]}"
  if [[ ${#lacking[@]} -gt 0 ]]; then
    update_once
    install_packages "${lacking[@]}"
  fi
  if [[ ${#wine_lacking[@]} -gt 0 ]]; then
    install_wine "${wine_lacking[@]}" ||
      say "Wine could not be installed; the Windows targets cannot be tested here" >&2
  fi
}

main "$@"
