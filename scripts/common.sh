# Shared by the commands of this folder: finding the project, installing what a bare Debian 12 lacks, building.
# shellcheck shell=bash

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)
missing=()

say() { printf '%s\n' "$*"; }

die() {
  printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2
  exit 1
}

# need COMMAND PACKAGE...: notes the packages when the command is missing.
need() {
  local command=$1
  shift
  command -v "$command" >/dev/null 2>&1 || missing+=("$@")
}

# need_file FILE PACKAGE...: the same for a file, such as a header.
need_file() {
  local file=$1
  shift
  [ -e "$file" ] || missing+=("$@")
}

# Installs the noted packages. Nothing is fetched, and no rights are needed, when none is missing.
install_missing() {
  [ ${#missing[@]} -gt 0 ] || return 0
  local as_root=()
  say "installing: ${missing[*]}"
  command -v apt-get >/dev/null 2>&1 || die "no apt-get here; please install: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null 2>&1 || die "not root and no sudo; please install: ${missing[*]}"
    as_root=(sudo)
  fi
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0)
  "${apt[@]}" update || say "apt-get update failed; trying with the package lists that are here"
  "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null ||
    die "could not install: ${missing[*]}"
  missing=()
}

# install_clang_runtime FLAG: installs the library that clang++ links with that flag. It is a package of its own, named
# after the compiler's version.
install_clang_runtime() {
  echo 'int main() {}' | clang++ "$1" -x c++ - -o /dev/null 2>/dev/null && return
  missing+=("libclang-rt-$(clang++ -dumpversion | cut -d. -f1)-dev")
  install_missing
}

need_build_tools() {
  need g++ g++
  need cmake cmake
  need ninja ninja-build
}

# clang++ and its sanitizers.
need_sanitizers() {
  need clang++ clang
  install_missing
  install_clang_runtime -fsanitize=address,undefined
}

# With much address randomization the sanitizers cannot always place their shadow memory: a prefix for commands.
# shellcheck disable=SC2034
steady_addresses=()
# shellcheck disable=SC2034
if setarch "$(uname -m)" -R true 2>/dev/null; then steady_addresses=(setarch "$(uname -m)" -R); fi

# build PRESET [TARGET]: configures and builds build/PRESET. What ninja says shows only when it fails.
build() {
  local preset=$1 log
  shift
  log=$root/build/$preset.log
  mkdir -p "$root/build"
  say "building $preset"
  if ! (cd "$root" && cmake --preset "$preset" "${cmake_options[@]}" &&
    cmake --build --preset "$preset" -j "$jobs" "${@/#/--target=}") >"$log" 2>&1; then
    grep -v '^\[[0-9]*/' "$log" | tail -n 60 >&2
    die "the $preset build failed; everything that it said is in $log"
  fi
}
cmake_options=()
