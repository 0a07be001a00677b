#!/bin/bash
# Looks at the sources without running them: scripts/lint.sh [format|tidy|python|shell]..., all of
# them if none is named. Tests and benchmarks are not given to clang-tidy: GoogleTest's macros take
# it longer than the whole program.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

readonly unit_folder=build/lint
readonly mingw=x86_64-w64-mingw32

# The files of the checkout under these patterns, new ones included.
sources() {
  git ls-files --cached --others --exclude-standard --deduplicate -- "$@" | while read -r file; do
    if [[ -e $file ]]; then printf '%s\n' "$file"; fi
  done
}

format() {
  sources '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
}

# Where the cross compiler has its headers, as arguments for Clang.
mingw_arguments() {
  printf '%s\n' "--target=$mingw" -nostdinc++ -DWINVER=0x0500 -D_WIN32_WINNT=0x0500 -DUNICODE \
    -D_UNICODE -DWIN32_LEAN_AND_MEAN -DNOMINMAX -DTONMIRA_ENDS_AT_TOP=1
  "$mingw-g++-win32" -xc++ -E -v /dev/null 2>&1 |
    sed -n '/^#include </,/^End of/{/^ /s/^ //p}' | grep -v '/include-fixed$\|gcc/[^/]*/[^/]*/include$' |
    sed 's/^/-isystem\n/'
}

# Sources are looked at together, since most of the time goes into the standard library's headers:
# those that know Windows, and the others as two units of about one size. Entry points stand alone.
# Prints the units.
write_units() {
  rm -rf "$unit_folder"
  mkdir -p "$unit_folder"
  local file portable=() windows=()
  while read -r file; do
    case $file in
      *main.cpp) write_unit "entry-${file//\//-}" "$file" ;;
      helpers/* | platform/windows/* | tools/windows/*) windows+=("$file") ;;
      *) portable+=("$file") ;;
    esac
  done < <(sources '*.cpp' ':!tests' ':!bench')
  write_unit windows.cpp "${windows[@]}"
  write_unit portable-1.cpp "${portable[@]:0:${#portable[@]}/2}"
  write_unit portable-2.cpp "${portable[@]:${#portable[@]}/2}"
  printf '%s\n' "$unit_folder"/*.cpp
}

# write_unit NAME FILE...
write_unit() {
  printf '#include "%s"\n' "${@:2}" >"$unit_folder/$1"
}

# Names in unnamed namespaces may clash: a unit is looked at in halves then.
tidy_unit() {
  local unit=$1 arguments=(-std=c++20 -I. -Ibuild/native/generated) files half
  case $(basename "$unit" .cpp) in
    portable* | entry-tools-posix*) ;;
    *) mapfile -t -O "${#arguments[@]}" arguments <"$unit_folder/mingw.txt" ;;
  esac
  mapfile -t files <"$unit"
  half=$((${#files[@]} / 2))
  if ((half > 0)) && ! clang++ -fsyntax-only -w "${arguments[@]}" "$unit" 2>/dev/null; then
    printf '%s\n' "${files[@]:0:half}" >"${unit%.cpp}-1.cpp"
    printf '%s\n' "${files[@]:half}" >"${unit%.cpp}-2.cpp"
    local failures=0
    tidy_unit "${unit%.cpp}-1.cpp" || failures=1
    tidy_unit "${unit%.cpp}-2.cpp" || failures=1
    return $failures
  fi
  clang-tidy --quiet "$unit" -- "${arguments[@]}" 2> >(grep -v 'warnings\? .*generated' >&2)
}

tidy() {
  # It writes base/version.h.
  [[ -e build/native/generated/base/version.h ]] || cmake --preset native >/dev/null || return 1
  local units
  units=$(write_units) || return 1
  mingw_arguments >"$unit_folder/mingw.txt" || return 1
  xargs -P "$(nproc)" -n 1 scripts/lint.sh tidy-unit <<<"$units"
}

python() {
  sources '*.py' | xargs "$python" -m flake8
}

shell() {
  sources release run test .ci/run bench/run '*.sh' '*.bash' | xargs shellcheck
}

case ${1:-} in
  tidy-unit) tidy_unit "$2" ;;
  *)
    (($# > 0)) || set -- format shell python tidy
    failed=()
    for check in "$@"; do
      case $check in
        format | tidy | python | shell) ;;
        *) fail "usage: scripts/lint.sh [format|tidy|python|shell]..." ;;
      esac
      begin=$SECONDS
      "$check" || failed+=("$check")
      echo "$check: $((SECONDS - begin)) s"
    done
    ((${#failed[@]} == 0)) || fail "lint: ${failed[*]}"
    ;;
esac
