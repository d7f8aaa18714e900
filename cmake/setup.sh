# Shared by ./run and ./test, with the repository as the current directory.

# Installs the Debian packages that are missing, those of a section too when it is named.
install_packages() {
  local wanted missing root=""
  wanted=$(awk -v section="[${1:-}]" '/^#/ { next } /^\[/ { other = ($0 != section); next } !other' packages)
  missing=$(for package in $wanted; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done | xargs)
  [ -n "$missing" ] || return 0
  echo "installing: $missing"
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "these packages are missing, and only root can install them: $missing" >&2
      return 1
    fi
    root=sudo
  fi
  $root apt-get update -qq
  # shellcheck disable=SC2086
  $root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# Configures and builds a preset. What the tools say is kept in a file and shown when they fail.
build() {
  local log="build/$1.log"
  mkdir -p build
  export CCACHE_DIR="${CCACHE_DIR:-$PWD/build/ccache}"
  if ! { cmake --preset "$1" && cmake --build --preset "$1"; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "the build has failed; all of it is in $log" >&2
    return 1
  fi
}

# Whether a window can be opened: a display is named and answers.
display_is_there() {
  if [ -n "${WAYLAND_DISPLAY:-}" ]; then return 0; fi
  [ -n "${DISPLAY:-}" ] || return 1
  if command -v xdpyinfo >/dev/null; then xdpyinfo >/dev/null 2>&1; fi
}
