#!/bin/bash
# Prints what setup.nsi must know of the files that it installs, as NSIS text:
#
#     packaging/list_files.sh FOLDER LIST
#
# a macro EachFolder and a macro EachFile, which insert the macro given to them for every folder and
# every file below FOLDER, and the size of all in KB. Into LIST go the files' names, one a line, as
# the uninstaller reads them. Names are of the code page of every Windows: plain ASCII.
#
# The installer adds two files of its own, uninstall.exe and tnf.ico. tonmira.exe is the last of the
# list, which is the order in which older files are replaced.
set -euo pipefail
export LC_ALL=C

cd "$1"
mapfile -t folders < <(find . -mindepth 1 -type d -printf '%P\n' | sort)
mapfile -t files < <(find . -type f -printf '%P\n' | sort)

for name in "${files[@]}"; do
  if [[ $name == *[^A-Za-z0-9._\ /-]* ]]; then
    echo "list_files.sh: a name that cannot be listed: $name" >&2
    exit 1
  fi
  if [[ $name != tonmira.exe ]]; then printf '%s\r\n' "${name//\//\\}"; fi
done >"$2"
printf '%s\r\n' tnf.ico uninstall.exe tonmira.exe >>"$2"

echo '!macro EachFolder ACTION'
for name in "${folders[@]}"; do echo "  !insertmacro \${ACTION} \"${name//\//\\}\""; done
echo '!macroend'
echo '!macro EachFile ACTION'
for name in "${files[@]}"; do echo "  !insertmacro \${ACTION} \"${name//\//\\}\" \"$name\""; done
echo '!macroend'
echo "!define SIZE_KB $(($(printf '%s\0' "${files[@]}" | du --files0-from=- -cb | tail -1 | cut -f1) / 1024))"
