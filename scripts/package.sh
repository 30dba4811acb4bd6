#!/usr/bin/env bash
# Builds the Debian package of Lumetra from a clean Release build in
# build-package/, without tests or benchmarks; the .deb lands there. Extra
# arguments go to cmake (CI adds -DLUMETRA_WERROR=ON).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --package

rm -rf build-package
cmake --preset package "$@"
cmake --build --preset package
(cd build-package && cpack)
echo "Built $(ls build-package/lumetra_*.deb)"
