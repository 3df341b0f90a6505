# Shared by the commands in tools/: messages, the project's root, a lock, the packages they need.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$root/build
jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '%s: %s\n' "${0##*/}" "$*"; }

die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# One command at a time works in this clone's build folder; another clone has its own.
lock_build_folder() {
  mkdir -p "$build" 2>/dev/null && : 2>/dev/null >"$build/.lock" ||
    die "cannot write in $build: check the disk's space and the folder's permissions."
  exec 9>"$build/.lock"
  if ! flock -n 9; then
    say "another command is at work in $build; waiting for it to end."
    flock 9
  fi
  local free_kib
  free_kib=$(df -Pk "$build" | awk 'NR == 2 { print $4 }')
  [ "${free_kib:-0}" -ge 2500000 ] ||
    die "$build has only $((${free_kib:-0} / 1024)) MiB free; 2500 MiB are needed. Make room and run this again."
}

# Runs a long step with its output in a log: a line when it starts, a line with the time it took,
# and the end of the log when it fails.
step() {
  local title=$1 log=$2 started=$SECONDS
  shift 2
  mkdir -p "${log%/*}"
  say "$title ..."
  if ! "$@" </dev/null >"$log" 2>&1 8>&- 9>&-; then
    tail -n 40 "$log" >&2
    die "$title failed; the whole output is in $log."
  fi
  say "$title: done in $((SECONDS - started)) s."
}

# cmake_build PRESET TARGET...: configures when needed and builds.
cmake_build() {
  local preset=$1
  shift
  cd "$root" || return 1
  cmake --preset "$preset" && cmake --build --preset "$preset" --parallel "$jobs" --target "$@"
}
