# With what is signed and verified. Sourced after facts.sh.
#
# The real certificate, when the environment names one (docs/releasing.md):
#
#     TONMIRA_SIGN_PKCS12           a PKCS#12 file with certificate and key
# or
#     TONMIRA_SIGN_PKCS11_MODULE    the library of a token
#     TONMIRA_SIGN_PKCS11_CERTIFICATE, TONMIRA_SIGN_PKCS11_KEY   what is on it, as PKCS#11 URIs
# with
#     TONMIRA_SIGN_PASSWORD_FILE    a file with the password or the PIN
#     TONMIRA_SIGN_CHAIN            a PEM file of the certificates between it and its authority, where
#                                   they do not come with it
#     TONMIRA_SIGN_TIMESTAMP        address of an RFC 3161 time stamp server, where wanted
#     TONMIRA_SIGN_CA               the authorities that signatures and time stamps must lead to, in one
#                                   PEM file; by default those of the system
#
# Otherwise the test certificate, which is made in build/test-certificate.
sign_with=()   # arguments of "osslsigncode sign"
verify_with=() # and of "osslsigncode verify"

# needs VARIABLE...: fails when one is not set.
needs() {
  local variable
  for variable in "$@"; do
    [[ -n ${!variable:-} ]] || { echo "error: $variable is not set" >&2; exit 2; }
  done
}

find_certificate() {
  if [[ -n ${TONMIRA_SIGN_PKCS12:-} ]]; then
    needs TONMIRA_SIGN_PASSWORD_FILE
    sign_with+=(-pkcs12 "$TONMIRA_SIGN_PKCS12" -readpass "$TONMIRA_SIGN_PASSWORD_FILE")
  elif [[ -n ${TONMIRA_SIGN_PKCS11_MODULE:-} ]]; then
    needs TONMIRA_SIGN_PKCS11_CERTIFICATE TONMIRA_SIGN_PKCS11_KEY TONMIRA_SIGN_PASSWORD_FILE
    sign_with+=(-pkcs11module "$TONMIRA_SIGN_PKCS11_MODULE"
      -pkcs11cert "$TONMIRA_SIGN_PKCS11_CERTIFICATE" -key "$TONMIRA_SIGN_PKCS11_KEY"
      -readpass "$TONMIRA_SIGN_PASSWORD_FILE")
  else
    # shellcheck disable=SC2154 # facts.sh has it
    local folder=$root/build/test-certificate
    if [[ ! -e $folder/certificate.pem ]]; then
      "$root/packaging/make_test_certificate.sh" "$folder"
    fi
    sign_with+=(-certs "$folder/certificate.pem" -key "$folder/key.pem")
    verify_with+=(-CAfile "$folder/certificate.pem")
    return
  fi
  if [[ -n ${TONMIRA_SIGN_CHAIN:-} ]]; then
    sign_with+=(-ac "$TONMIRA_SIGN_CHAIN")
  fi
  if [[ -n ${TONMIRA_SIGN_TIMESTAMP:-} ]]; then
    sign_with+=(-ts "$TONMIRA_SIGN_TIMESTAMP")
  fi
  if [[ -n ${TONMIRA_SIGN_CA:-} ]]; then
    verify_with+=(-CAfile "$TONMIRA_SIGN_CA" -TSA-CAfile "$TONMIRA_SIGN_CA")
  fi
}
