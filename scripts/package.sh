#!/usr/bin/env bash
# Builds the Debian package of Lumetra from a clean Release build in
# build-package/, without tests or benchmarks; the .deb lands there.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --package

build_dir=build-package
rm -rf "$build_dir"
BUILD_DIR=$build_dir BUILD_TYPE=Release bash scripts/build.sh -DLUMETRA_TESTS=OFF -DLUMETRA_BENCH=OFF
(cd "$build_dir" && cpack)
echo "Built $(ls "$build_dir"/lumetra_*.deb)"
