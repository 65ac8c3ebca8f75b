#!/usr/bin/env bash
# Looks for faults in the sources with clang-tidy, as .clang-tidy says; tests and benchmarks are left out. A source that
# was in order, and whose text and headers are still the same, is not looked at again. With --all, the command line
# (host/cli) is looked at too, whose option parser alone takes ten seconds a file. With --deep, the static analyzer follows
# the paths through every function as well; that takes a while.
set -euo pipefail

# shellcheck source=packaging/setup.sh
. "$(dirname -- "${BASH_SOURCE[0]}")/setup.sh"
cd "$root"

readonly memory=build/tidy
# How each source is compiled by itself; the presets compile several at once.
readonly database=build/tidy/database

# What every result depends on: the checks, the compile options and all headers.
fingerprint() {
  {
    printf '%s\n' "$@"
    cat .clang-tidy "$database/compile_commands.json"
    find OrvikTypeLib platform resources plugin instrument results ui model host tester -name '*.h' -print0 |
      sort -z | xargs -0 cat
  } | sha256sum | cut -d ' ' -f 1
}

# Looks at one source; keeps quiet when it is in order.
look_at() {
  local source=$1 stamp output
  stamp=$memory/$(printf '%s\n' "$fingerprint" "$source" | cat - "$source" | sha256sum | cut -d ' ' -f 1)
  [ -e "$stamp" ] && return 0
  if output=$(clang-tidy-14 --quiet -p "$database" ${checks:+"--checks=$checks"} "$source" 2>&1); then
    touch "$stamp"
  else
    printf '%s\n' "$output" | grep -Ev '^[0-9]+ warnings? generated' >&2
    return 1
  fi
}

if [ "${1-}" = --one ]; then
  look_at "$2"
  exit
fi

checks=
left_out=host/cli
for option in "$@"; do
  case $option in
  --deep) checks=clang-analyzer-* ;;
  --all) left_out=none ;;
  esac
done
mkdir -p "$memory"
logged configure-tidy cmake -S . -B "$database" -G Ninja -DCMAKE_BUILD_TYPE=Release -DORVIK_TESTS=OFF
fingerprint=$(fingerprint "$checks")
export checks fingerprint
find OrvikTypeLib platform resources plugin instrument results ui model host tester -path "$left_out" -prune -o \
  -name '*.cpp' -print0 | sort -z | xargs -0 -r -n 1 -P "$jobs" "$root/packaging/tidy.sh" --one
