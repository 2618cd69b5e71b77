# What the scripts share. Sourced, not run: it moves to the root of the tree and
# offers a few functions.
# shellcheck shell=bash
set -euo pipefail

program="${0##*/}"
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
root="$PWD"
logs="$root/build/logs"

say() { printf '%s\n' "$1" >&2; }

fail() {
  say "$program: $1"
  exit 1
}

# logged NAME COMMAND...: the output goes to build/logs/NAME.log; of a command
# that fails, its end is shown.
logged() {
  local log="$logs/$1.log" status=0
  shift
  mkdir -p -- "$logs"
  "$@" >"$log" 2>&1 || status=$?
  if ((status)); then
    tail -n 60 -- "$log" >&2
    say "$program: '$*' failed with status $status; all of its output: $log"
  fi
  return "$status"
}

# build PRESET [TARGET...]: configures and builds one preset, everything or the
# named targets.
build() {
  local preset="$1"
  shift
  logged "$preset-configure" cmake --preset "$preset" || return
  logged "$preset-build" cmake --build --preset "$preset" ${1+--target "$@"}
}
