#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Regenerates the RTF fixtures of tests/data/rtf from the documents in
# tests/data/rtf/sources, with LibreOffice Writer (libreoffice-writer-nogui).
# The produced files are committed, so the tests need no LibreOffice.
set -e
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --regenerate
cd tests/data/rtf
profile=$(mktemp -d)
trap 'rm -rf "$profile"' EXIT
convert() {
    soffice -env:UserInstallation=file://"$profile" --headless --infilter="$2" --convert-to rtf "sources/$1" --outdir .
}
convert lettera.fodt "OpenDocument Text Flat XML"
convert promemoria.html "HTML (StarWriter)"
convert testo.txt "Text (encoded):UTF8,LF,,,"
