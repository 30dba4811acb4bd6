#!/usr/bin/env bash
# Renders the PNG icons of packaging/icons/hicolor from the scalable SVG, with
# rsvg-convert (librsvg2-bin). Run it after changing the SVG and commit the
# PNGs: the build itself needs no SVG tool.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --regenerate
cd packaging/icons/hicolor
name=it.lumetra.Lumetra
svg=scalable/apps/$name.svg

for size in 16 22 24 32 48 64 128 256; do
  mkdir -p "${size}x${size}/apps"
  rsvg-convert --width "$size" --height "$size" "$svg" --output "${size}x${size}/apps/$name.png"
done
