# Shared by ./demo and ./check: sets the machine up and builds. To be sourced; works from any current folder.
# shellcheck shell=bash

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
jobs=${ORVIK_JOBS:-$(nproc)}
readonly root jobs

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2
  exit 1
}

# The packages of the lists named, such as "build check".
packages_of() {
  local list
  for list in "$@"; do
    sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$root/packaging/packages/$list.txt"
  done
}

# Those of the packages named that are not installed.
missing_of() {
  local package
  for package in "$@"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || say "$package"
  done
}

# Installs what the lists name and the machine lacks. Quiet, and without network, when nothing is missing.
ensure_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say "This is no Debian system: the packages that packaging/packages/*.txt name must be there already."
    return
  fi
  local wanted missing
  mapfile -t wanted < <(packages_of "$@")
  mapfile -t missing < <(missing_of "${wanted[@]}")
  [ ${#missing[@]} -gt 0 ] || return 0

  if [ "$(id -u)" -ne 0 ]; then
    fail "these packages are missing, and only root can install them. Run this, then try again:
  sudo apt-get update && sudo apt-get install --no-install-recommends ${missing[*]}"
  fi
  say "Installing: ${missing[*]}"
  # A machine that has just started may still be updating itself: wait for the package manager's lock.
  local apt_options=(-o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 -qq)
  export DEBIAN_FRONTEND=noninteractive
  # The tests start a database server of their own; the system wants none for them.
  if [[ " ${missing[*]} " == *" postgresql"* && ! -e /etc/postgresql-common/createcluster.conf ]]; then
    mkdir -p /etc/postgresql-common
    say "create_main_cluster = false" >/etc/postgresql-common/createcluster.conf
  fi
  logged apt-update apt-get "${apt_options[@]}" update ||
    fail "the package lists could not be fetched: is there a network? Missing: ${missing[*]}"
  logged apt-install apt-get "${apt_options[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null ||
    fail "could not install: ${missing[*]}"
}

# Runs a command with its output in build/log/NAME.log; shows the end of it when the command fails.
logged() {
  local name=$1 status=0
  shift
  mkdir -p "$root/build/log"
  "$@" >"$root/build/log/$name.log" 2>&1 || status=$?
  [ $status -ne 0 ] || return 0
  tail -n 60 "$root/build/log/$name.log" >&2
  say "(all of it: build/log/$name.log)" >&2
  return $status
}

# Runs a long command: on a terminal one can watch it, elsewhere its output goes to a log.
watched() {
  if [ -t 1 ]; then
    shift
    "$@"
  else
    logged "$@"
  fi
}

# Configures a preset of CMakePresets.json; further arguments go to cmake.
configure() {
  local preset=$1
  shift
  (cd "$root" && logged "configure-$preset" cmake --preset "$preset" "$@")
}

# Builds a configured preset: the targets named, or everything.
build() {
  local preset=$1
  shift
  (cd "$root" && watched "build-$preset" cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"})
}
