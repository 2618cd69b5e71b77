# What the scripts share. Sourced, not run: it moves to the root of the tree and
# offers a few functions.
# shellcheck shell=bash
set -euo pipefail

program="${0##*/}"
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."
root="$PWD"
logs="$root/build/logs"
# The folders of what is shipped.
# shellcheck disable=SC2034
products=(plugin text os cim json platform report compare findings schema describe replay app)

# Compilers run through ccache where it is installed; whoever wants another
# launcher, or none, says so.
launcher_is_given="${CMAKE_CXX_COMPILER_LAUNCHER+yes}"
CMAKE_CXX_COMPILER_LAUNCHER="${CMAKE_CXX_COMPILER_LAUNCHER-}"
choose_launcher() {
  [[ -z "$launcher_is_given" ]] && command -v ccache >/dev/null || return 0
  CMAKE_CXX_COMPILER_LAUNCHER=ccache
  # Precompiled headers pass through it under these conditions only.
  export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS-pch_defines,time_macros}"
  # What is not found is compiled at once, not preprocessed first.
  export CCACHE_DEPEND="${CCACHE_DEPEND-1}"
}
choose_launcher

say() { printf '%s\n' "$1" >&2; }

fail() {
  say "$program: $1"
  exit 1
}

# One line, and the status for whoever called it wrongly.
bad_usage() {
  say "$program: $1"
  exit 2
}

# finding WHERE WHAT: a line of what a check found, and their count.
findings=0
finding() {
  printf '%s: %s\n' "$1" "$2"
  findings=$((findings + 1))
}

# check_names FILE FOLDER: finds the tree's and the build's folders named in it.
check_names() {
  local places place
  mapfile -t places < <({ realpath -- "$root" "$2" && echo "$root"; } | sort -u)
  for place in "${places[@]}"; do
    ! grep -qaF -- "$place/" "$1" || finding "$1" "names the folder $place"
  done
}

# The text that a script begins with, up to its first command.
usage_of() { sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' -- "$1"; }

# logged NAME COMMAND...: the output goes to build/logs/NAME.log; of a command
# that fails, its end is shown.
logged() {
  local name="$1" log="$logs/$1.log" status=0 watcher
  shift
  mkdir -p -- "$logs"
  : >"$log"
  watch_log "$name" "$log" &
  watcher=$!
  "$@" >"$log" 2>&1 || status=$?
  kill "$watcher" 2>/dev/null || true
  wait "$watcher" 2>/dev/null || true
  [[ ! -t 2 ]] || printf '\r\033[K' >&2
  if ((status)); then
    tail -n 60 -- "$log" >&2
    say "$program: '$*' failed with status $status; all of its output: $log"
  fi
  return "$status"
}

# watch_log NAME LOG: shows that a command is alive and how far it came, as "12/34"
# of its output: on a terminal in one line that is written over every second,
# elsewhere in a line every 30 seconds.
watch_log() {
  local began=$SECONDS step=30 before='' after='\n' place
  [[ ! -t 2 ]] || step=1 before='\r' after='\033[K'
  # The shell that runs the script may be gone without a word.
  while sleep "$step" >/dev/null 2>&1 && kill -0 "$$" 2>/dev/null; do
    place="$(tail -c 2000 -- "$2" | grep -aoE '[0-9]+/[0-9]+' | tail -n 1 || true)"
    # shellcheck disable=SC2059  # both ends are this function's own
    printf "$before%s: %d s%s$after" "$1" "$((SECONDS - began))" "${place:+, $place}" >&2
  done
}

# configure PRESET [OPTION...]
configure() {
  local preset="$1" folder="$root/build/$1"
  shift
  check_place "$folder" || return
  logged "$preset-configure" cmake --preset "$preset" \
    -D CMAKE_CXX_COMPILER_LAUNCHER="$CMAKE_CXX_COMPILER_LAUNCHER" "$@"
}

# check_place BUILDFOLDER: false when it was configured as another folder, or for
# a tree that is gone.
check_place() {
  local cache="$1/CMakeCache.txt" source made_as
  [[ -f "$cache" ]] || return 0
  source="$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$cache")"
  made_as="$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$cache")"
  [[ -d "$source" && "$made_as" -ef "$1" ]] || {
    say "$program: the checkout moved: remove build/ (it was made in $source)"
    return 1
  }
}

# compile PRESET [TARGET...]: everything or the named targets.
compile() {
  local preset="$1"
  shift
  logged "$preset-build" cmake --build --preset "$preset" ${1+--target "$@"}
}

# build PRESET [TARGET...]: configures and compiles.
build() { configure "$1" && compile "$@"; }
