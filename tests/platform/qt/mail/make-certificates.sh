#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the certificates of the tests' mail server in a folder: an authority (ca.pem), a good one of
# this authority for 127.0.0.1, one for another name, and one that nobody vouches for.
#
#   make-certificates.sh FOLDER
set -euo pipefail
cd "$1"

key() {
    openssl ecparam -name prime256v1 -genkey -noout -out "$1.key"
}

# signed NAME SUBJECT-ALTERNATIVE-NAME
signed() {
    key "$1"
    openssl req -new -key "$1.key" -subj "/CN=$1" -out "$1.csr"
    openssl x509 -req -in "$1.csr" -CA ca.pem -CAkey ca.key -CAcreateserial -days 2 \
        -extfile <(echo "subjectAltName=$2") -out "$1.pem" 2>/dev/null
}

for own in ca foreign; do
    key "$own"
    openssl req -x509 -new -key "$own.key" -subj "/CN=$own" -days 2 \
        -addext "subjectAltName=IP:127.0.0.1" -out "$own.pem"
done
signed good IP:127.0.0.1
signed other DNS:mail.example.org
