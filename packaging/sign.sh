#!/bin/bash
# Signs programs in place, and verifies them: packaging/sign.sh FILE...
# certificate.sh says with what.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
# shellcheck source=packaging/facts.sh
. "$here/facts.sh"
# shellcheck source=packaging/certificate.sh
. "$here/certificate.sh"

find_certificate
for file in "$@"; do
  signed=$(mktemp -u "$file.XXXXXX")
  if ! log=$(osslsigncode sign "${sign_with[@]}" -h sha256 -n Tonmira -time "$SOURCE_DATE_EPOCH" \
    -in "$file" -out "$signed" 2>&1); then
    printf '%s\nerror: not signed: %s\n' "$log" "$file" >&2
    rm -f "$signed"
    exit 1
  fi
  chmod --reference="$file" "$signed"
  mv "$signed" "$file"
done
"$here/verify.sh" "$@"
