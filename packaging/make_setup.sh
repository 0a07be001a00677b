#!/bin/bash
# Makes the installer of one kind of Windows:
#
#     packaging/make_setup.sh ARCH FOLDER OUT [SIGN]
#
# ARCH    x64 or x86
# FOLDER  the complete portable folder; it is copied, not changed
# OUT     the installer to write
# SIGN    an executable file that signs the one file given to it, in place: for the uninstaller, which
#         only exists while the installer is made. Signing the installer is the caller's.
#
# setup.nsi is compiled in its own folder with FOLDER, ARCH, VERSION, OUT and, when given, SIGN
# defined; all paths are absolute. The same files give the same bytes: every time stored is
# SOURCE_DATE_EPOCH, by default that of the last commit.
set -euo pipefail

if (($# < 3 || $# > 4)) || [[ $1 != x64 && $1 != x86 ]]; then
  echo 'usage: packaging/make_setup.sh x64|x86 FOLDER OUT [SIGN]' >&2
  exit 2
fi
# shellcheck source=packaging/facts.sh
. "$(dirname "${BASH_SOURCE[0]}")/facts.sh"
arch=$1
folder=$(realpath "$2")
out=$(realpath "$3")

# The installer stores the times of FOLDER's files; that of anything else, as a picture, is the time
# of the checkout, and stays out.
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -R "$folder/." "$copy"
find "$copy" -exec touch --date="@$SOURCE_DATE_EPOCH" {} +

definitions=("-DFOLDER=$copy" "-DARCH=$arch" "-DVERSION=$version" "-DOUT=$out")
if (($# == 4)); then
  definitions+=("-DSIGN=$(realpath "$4")")
fi
makensis -V2 -WX "-XSetDateSave off" "${definitions[@]}" "$root/packaging/setup.nsi"
