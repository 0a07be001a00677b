#!/bin/bash
# Runs the program where the machine's own Wine cannot show it, each in a root filesystem of its own:
#   scripts/other_windows.sh x86     the 32-bit program as on Windows 2000, XP and 10
#   scripts/other_windows.sh newer   the x64 program on a newer Wine
# The root filesystems are made once, under build/roots. Needs root, debootstrap and the builds.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/setup.sh

readonly roots=$PWD/build/roots

# make_root NAME ARCHITECTURE SUITE PACKAGES
make_root() {
  local root=$roots/$1
  if [[ -d $root ]]; then return; fi
  heading "Making the root filesystem $1"
  mkdir -p "$roots"
  # What debootstrap mounts in it is nobody else's, and goes with it.
  rm -rf --one-file-system "$root.new"
  unshare --mount debootstrap --arch="$2" --variant=minbase --include="$4" "$3" "$root.new" \
    http://deb.debian.org/debian >"$root.txt" 2>&1 || { tail "$root.txt"; return 1; }
  # Names of files in it are the same inside and outside.
  mkdir -p "$root.new$roots"
  ln -s / "$root.new$root"
  mv "$root.new" "$root"
}

# use_root NAME BUILD: from here on "wine" is that of the root filesystem, with the programs of the build.
use_root() {
  local root=$roots/$1
  local programs=$root/opt/$2 links=$root.commands
  rm -rf "$programs" "$links"
  mkdir -p "$programs" "$links" "$root/tmp"
  cp -r "build/$2/tonmira" "build/$2/rig" "build/$2/digest.exe" "$programs"
  ln -s "$PWD/tests/roots/enter" "$links/wine"
  ln -s "$PWD/tests/roots/enter" "$links/wineserver"
  export PATH=$links:$PATH TMPDIR=$root/tmp TONMIRA_BUILD=$programs PYTHONDONTWRITEBYTECODE=1
}

run_tests() {
  "$python" -m pytest -q -p no:cacheprovider --durations=3 "$@"
}

case ${1:-} in
  x86)
    make_root bookworm-i386 i386 bookworm wine32,libpulse0
    use_root bookworm-i386 windows-x86
    chosen='x86_versions or (at_its_pitch and 440) or in_order_at_their_pitches'
    chosen+=' or it_installs_starts or plays_is_closed'
    run_tests tests/real/x86_versions.py tests/real/test_tones.py tests/real/test_player.py \
      tests/real/test_setup.py -k "$chosen"
    ;;
  newer)
    make_root trixie-amd64 amd64 trixie wine64,libpulse0
    use_root trixie-amd64 windows
    run_tests tests/real/test_tones.py tests/real/test_windows.py \
      -k '(at_its_pitch and 128-Custom and 440) or closing_the_window or exit_in_the_menu'
    ;;
  *) fail "usage: scripts/other_windows.sh x86|newer" ;;
esac
