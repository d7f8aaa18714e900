# Shared by ./run and ./test: installs the Debian packages that are missing. Sourced with the repository as the current
# directory. `install_packages` takes "test" to add the packages of the tests.
install_packages() {
  local wanted missing
  wanted=$(sed -e 's/#.*//' packages | { if [ "${1:-}" = test ]; then grep -v '^\['; else sed '/^\[test\]/,$d'; fi; } | xargs)
  missing=$(for package in $wanted; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || echo "$package"
  done | xargs)
  [ -n "$missing" ] || return 0
  echo "installing: $missing"
  local root=""
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "these packages are missing, and only root can install them: $missing" >&2
      return 1
    fi
    root=sudo
  fi
  $root apt-get update -qq
  # shellcheck disable=SC2086
  DEBIAN_FRONTEND=noninteractive $root apt-get install -y -qq --no-install-recommends $missing >/dev/null
}
