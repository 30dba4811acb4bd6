#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the PNG icons of packaging/icons/hicolor from the scalable SVGs, the
# program's and its bill type's, with rsvg-convert (librsvg2-bin). Run it after
# changing an SVG and commit the PNGs: the build itself needs no SVG tool.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --regenerate
cd packaging/icons/hicolor

for icon in apps/it.lumetra.Lumetra mimetypes/application-x-lumetra-parcella; do
  for size in 16 22 24 32 48 64 128 256; do
    mkdir -p "${size}x${size}/${icon%/*}"
    rsvg-convert --width "$size" --height "$size" "scalable/$icon.svg" --output "${size}x${size}/$icon.png"
  done
done
