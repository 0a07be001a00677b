#!/bin/bash
# Packs what was built into what is released: packaging/pack.sh X64_FOLDER X86_FOLDER OUT
#
# The two are the complete portable folders of both builds; they are copied, not changed. OUT, a
# folder, gets the installers and the portable archives, with every program in them signed,
# SHA256SUMS, and the manifests for winget; what it has of these is replaced when all went well.
# The same folders, of the same commit, give the same bytes.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=packaging/facts.sh
. "$here/facts.sh"

(($# == 3)) || { echo 'usage: packaging/pack.sh X64_FOLDER X86_FOLDER OUT' >&2; exit 2; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/out"

# Prints the programs and libraries of a folder. Language files have a library's name, too, but are
# texts.
programs_of() {
  local file
  find "$1" -type f | sort | while read -r file; do
    if [[ $(head -c 2 "$file" | tr -d '\0') == MZ ]]; then printf '%s\n' "$file"; fi
  done
}

# verify_contents ARCHIVE COUNT: fails unless it holds so many programs, all of them signed.
verify_contents() {
  local contents=$work/contents programs
  rm -rf "$contents"
  # NSIS's own libraries, which the installer unpacks for itself, are not ours.
  7zz x -y -bso0 -bsp0 "-o$contents" "-x!\$PLUGINSDIR" "$1"
  mapfile -t programs < <(programs_of "$contents")
  if ((${#programs[@]} != $2)); then
    echo "error: ${#programs[@]} programs in $1, and not $2" >&2
    exit 1
  fi
  "$here/verify.sh" "${programs[@]}"
}

# pack ARCH FOLDER END_OF_NAMES
pack() {
  local arch=$1 folder=$work/$1/tonmira name=$work/out/tonmira-$version programs
  mkdir "$work/$arch"
  cp -R "$2" "$folder"
  mapfile -t programs < <(programs_of "$folder")
  "$here/sign.sh" "${programs[@]}"
  /usr/bin/python3 "$here/make_zip.py" "$folder" "$name-portable$3.zip"
  "$here/make_setup.sh" "$arch" "$folder" "$name-setup$3.exe" "$here/sign.sh"
  "$here/sign.sh" "$name-setup$3.exe"
  verify_contents "$name-portable$3.zip" "${#programs[@]}"
  verify_contents "$name-setup$3.exe" $((${#programs[@]} + 1))
  echo "$arch: ${#programs[@]} programs, the installer and the uninstaller are signed"
}

pack x64 "$1" ''
pack x86 "$2" -x86
cd "$work/out"
sha256sum -- * >SHA256SUMS
/usr/bin/python3 "$here/make_winget.py" .
cd - >/dev/null

mkdir -p "$3"
rm -rf "$3"/tonmira-*.exe "$3"/tonmira-*.zip "$3/SHA256SUMS" "$3/winget"
mv "$work/out"/* "$3/"
