#!/bin/bash
# Fails unless every program is signed by our certificate: packaging/verify.sh FILE...
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
# shellcheck source=packaging/facts.sh
. "$here/facts.sh"
# shellcheck source=packaging/certificate.sh
. "$here/certificate.sh"

(($# > 0)) || { echo 'usage: packaging/verify.sh FILE...' >&2; exit 2; }
find_certificate
for file in "$@"; do
  if ! log=$(osslsigncode verify "${verify_with[@]}" -in "$file" 2>&1); then
    printf '%s\nerror: not signed by us: %s\n' "$log" "$file" >&2
    exit 1
  fi
done
