#!/bin/bash
# Makes the certificate that stands in for the real one: packaging/make_test_certificate.sh FOLDER
# leaves key.pem and certificate.pem in FOLDER.
#
# Both come out the same every time, so that two runs of a release sign alike: the key is a provable
# prime pair of FIPS 186-4 from a fixed seed. So anybody can make it, and nothing may ever trust it.
set -euo pipefail

(($# == 1)) || { echo 'usage: packaging/make_test_certificate.sh FOLDER' >&2; exit 2; }
folder=$1
mkdir -p "$folder"
half=$(mktemp -d "$folder/XXXXXX")
trap 'rm -rf "$half"' EXIT

seed=$(printf 'Tonmira, test certificate' | sha256sum)
certtool --generate-privkey --provable --bits 3072 --hash sha256 --seed="${seed%% *}" \
  --outfile "$half/provable.pem" 2>"$half/log" || { cat "$half/log" >&2; exit 1; }
openssl pkey -in "$half/provable.pem" -out "$half/key.pem"

cat >"$half/template" <<'END'
cn = "TEST CERTIFICATE of Tonmira, never to be trusted"
serial = 1
activation_date = "2000-01-01 00:00:00 UTC"
expiration_date = "2049-12-31 23:59:59 UTC"
signing_key
code_signing_key
END
certtool --generate-self-signed --hash SHA256 --load-privkey "$half/key.pem" \
  --template "$half/template" --outfile "$half/certificate.pem" 2>"$half/log" ||
  { cat "$half/log" >&2; exit 1; }
mv "$half/key.pem" "$half/certificate.pem" "$folder/"
