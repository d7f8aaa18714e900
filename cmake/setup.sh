# shellcheck shell=bash
# Shared by ./run, ./test, ./check and bench/run, with the repository as the current directory.

# Installs the Debian packages that are missing, those of a section too when it is named. Other systems have packages of
# their own, there CMake names what it does not find.
install_packages() {
  local wanted missing root=""
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then return 0; fi
  wanted=$(awk -v section="[${1:-}]" '/^#/ { next } /^\[/ { other = ($0 != section); next } !other' packages)
  missing=$(for package in $wanted; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done | xargs)
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! may_become_root; then
      echo "packages are missing, and only root can install them: apt-get install --no-install-recommends $missing" >&2
      return 1
    fi
    root=sudo
  fi
  echo "installing: $missing"
  $root apt-get update -qq
  # shellcheck disable=SC2086
  $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# Whether sudo lets the user in. It asks for a password at a terminal only.
may_become_root() {
  command -v sudo >/dev/null || return 1
  if [ -t 0 ]; then sudo -v; else sudo -n true 2>/dev/null; fi
}

# Names the programs that are missing ahead of CMake, which ends at the first of them.
require_programs() {
  local missing="" compiler
  command -v cmake >/dev/null || missing="$missing cmake"
  command -v ninja >/dev/null || command -v ninja-build >/dev/null || missing="$missing ninja"
  # shellcheck disable=SC2086
  compiler=$(command -v ${CXX:-c++ g++ clang++} | head -n 1 || true)
  [ -n "$compiler" ] || missing="$missing ${CXX:-c++}"
  [ -n "$missing" ] || return 0
  echo "programs are missing:$missing" >&2
  return 1
}

# Configures a preset, with the compiler that CXX names. What the tools say is kept in a file and shown when they fail.
configure() {
  local folder="build/$1" log="build/$1.log" new="" fresh="" before
  require_programs || return 1
  [ -d "$folder" ] || new=yes
  if [ -n "${CXX:-}" ] && [ -f "$folder/CMakeCache.txt" ]; then
    before=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$folder/CMakeCache.txt")
    [ "$before" = "$(command -v "$CXX")" ] || fresh=--fresh
  fi
  mkdir -p build
  export CCACHE_DIR="${CCACHE_DIR:-$PWD/build/ccache}"
  if ! cmake --preset "$1" $fresh >"$log" 2>&1; then
    if grep -q '^CMake Error' "$log"; then sed -n '/^CMake Error/,$p' "$log" >&2; else tail -n 60 "$log" >&2; fi
    if [ -n "$new" ]; then rm -rf "$folder"; fi
    echo "CMake cannot build this here; all that it says is in $log" >&2
    return 1
  fi
}

# Configures and builds a preset, or of a preset that is configured the targets that are named.
build() {
  local log="build/$1.log"
  if [ $# -eq 1 ]; then configure "$1" || return 1; fi
  if ! cmake --build --preset "$1" ${2:+--target "${@:2}"} >>"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "the build has failed; all of it is in $log" >&2
    return 1
  fi
}

# Makes ready what tools of clang ask of a preset: its commands and its precompiled headers.
build_headers() {
  local headers
  configure "$1" || return 1
  headers=$(ninja -C "build/$1" -t targets all | sed -n 's/^\([^:]*cmake_pch\.hxx\.pch\):.*/\1/p')
  # shellcheck disable=SC2086
  build "$1" $headers
}

# Builds what Windows needs, each bitness with its data in a folder that can be handed on.
build_windows() {
  local bits topics
  build tools
  for bits in x64 x86; do
    CXX="" build "windows-$bits"  # the compiler is the preset's
    cmake --install "build/windows/build-$bits" --component plexel-programs --strip >>"build/windows-$bits.log"
    cmake --install "build/windows/build-$bits" --component plexel-data >>"build/windows-$bits.log"
    build/tools/bin/plexel-layout-tables >"build/windows/$bits/data/keyboard.layouts"
    for topics in data/Help/*/; do
      python3 cmake/windows/help_file.py "$topics" "build/windows/$bits/data/Help/$(basename "$topics").chm"
    done
  done
}

# Packs that into archives and set-up programs.
package_windows() {
  local bits version
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/build-x64/CMakeCache.txt)
  for bits in 64:x64 32:x86; do
    python3 cmake/windows/package.py "build/windows/${bits#*:}" "${bits%:*}" "$version" dist
  done
}

# Builds the tests that run there themselves, of each bitness for which this system's Wine has its part.
build_windows_tests() {
  local bits folder example log=build/windows-tests.log
  for bits in x64 $(if [ -e /usr/lib/wine/wine ]; then echo x86; fi); do
    folder=build/windows/build-$bits
    example=$([ "$bits" = x86 ] || echo control_example)
    # shellcheck disable=SC2086
    if ! cmake -DPLEXEL_BUILD_WINDOWS_TESTS=ON "$folder" >"$log" 2>&1 ||
      ! cmake --build "$folder" --target test_win32 test_activex test_host $example >>"$log" 2>&1; then
      tail -n 60 "$log" >&2
      echo "the tests for Windows cannot be built; all of it is in $log" >&2
      return 1
    fi
  done
}

# Whether a window can be opened: a display is named and answers.
display_is_there() {
  if [ -n "${WAYLAND_DISPLAY:-}" ]; then return 0; fi
  [ -n "${DISPLAY:-}" ] || return 1
  if command -v xdpyinfo >/dev/null; then xdpyinfo >/dev/null 2>&1; fi
}
