# shellcheck shell=bash
# What run, test and .ci/run share. To be sourced from the project's root.

. scripts/packages.sh

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

cores() { getconf _NPROCESSORS_ONLN; }

# build PRESET [ARGUMENT...]: configures and builds in build/PRESET. Configuring again is left to the
# build itself.
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"$(log_file "configure-$preset")" 2>&1 || {
    cat "$(log_file "configure-$preset")"
    fail "could not configure build/$preset"
  }
  cmake --build --preset "$preset" "$@" || fail "could not build build/$preset"
}

# run_tests PRESET [ARGUMENT...]: runs its tests; keeps the last lines, ctest's summary.
run_tests() {
  local preset=$1 log status=0
  shift
  log=$(log_file "tests-$preset")
  ctest --preset "$preset" --parallel "$(cores)" "$@" 2>&1 | tee "$log" || status=1
  sed -n '/tests passed, .* failed out of/,$p' "$log" >"build/logs/summary-$preset"
  skip_reasons "build/$preset/Testing/Temporary/LastTest.log"
  return $status
}

# skip_reasons LOG: how many tests of ctest's log could not be run here, and why.
skip_reasons() {
  sed -n "/: Skipped\$/{n;p}; s/.* skipped ['\"]\(.*\)['\"]\$/\1/p" "$1" | sort | uniq -c | sort -rn |
    sed 's/^ *\([0-9]*\) /Skipped, \1: /'
}

# check_hardening: the program that users run is built as cmake/Hardening.cmake asks. Needs build/release.
check_hardening() {
  local log
  log=$(log_file hardened)
  [ "$(uname)" != Linux ] || python3 tests/packaging/hardened.py build/release/src/main/drossbin >"$log" 2>&1 || {
    cat "$log"
    return 1
  }
}

summary_of() { cat "build/logs/summary-$1"; }

log_file() {
  mkdir -p build/logs
  printf 'build/logs/%s' "$1"
}

# A script that passed says so in build/passed/NAME, with a fingerprint of all that it depended on;
# while nothing of that changes there is nothing to do again. The fingerprint is taken before the
# work, so that a file edited meanwhile counts as changed. Usage: passed_before NAME FINGERPRINT.
passed_before() { [ "$(cat "build/passed/$1" 2>/dev/null)" = "$2" ]; }

remember_pass() {
  mkdir -p build/passed
  printf '%s\n' "$2" >"build/passed/$1"
}

fingerprint() { { source_contents; system_contents; } | checksum | cut -d' ' -f1; }

source_contents() {
  source_files | xargs -0 ls -ld | cut -c1-10
  source_files | xargs -0 "$(checksum_tool)"
}

# Files that git knows or would know; a copy without git has its whole folder looked at.
source_files() {
  if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' file; do
      [ ! -f "$file" ] || printf '%s\0' "$file"
    done
  else
    find . -path ./build -prune -o -type f -print0
  fi | LC_ALL=C sort -z -u
}

system_contents() {
  uname -srm
  id -u
  env | grep -E '^(CC|CXX|CFLAGS|CXXFLAGS|LDFLAGS|CMAKE_[A-Z_]*|CTEST_[A-Z_]*)=' | LC_ALL=C sort
  if command -v dpkg-query >/dev/null; then
    dpkg-query -W
  elif command -v brew >/dev/null; then
    brew list --versions
  fi
  if unshare --mount true 2>/dev/null || unshare --user --mount true 2>/dev/null; then echo namespaces; fi
}

checksum_tool() { if command -v sha256sum >/dev/null; then echo sha256sum; else echo shasum; fi; }

checksum() { "$(checksum_tool)"; }
