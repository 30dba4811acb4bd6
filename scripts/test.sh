#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is needed, checks the formatting and that every source file
# names its licence (an SPDX line), builds the tests and the benchmarks with
# warnings as errors under AddressSanitizer and UBSan (at -O2, so the
# optimiser's warnings are seen too) and runs the whole suite through CTest;
# then builds the Debian package from a clean Release build, warnings as
# errors, and has lintian check it as Debian checks its own: no error and no
# warning. --quick stops after the suite.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --tests --package

echo "== clang-format"
find src tests tools bench fuzz -name '*.cpp' -o -name '*.h' | sort | xargs clang-format --dry-run -Werror
echo "== SPDX lines"
bash scripts/spdx.sh --check

echo "== Tests, under AddressSanitizer and UBSan"
cmake --preset check
cmake --build --preset check
ctest --preset check -j "$(nproc)"

if [ "${1:-}" != "--quick" ]; then
  echo "== Release: the Debian package"
  bash scripts/package.sh -DLUMETRA_WERROR=ON
  echo "== lintian"
  lintian --display-info --fail-on error,warning build-package/lumetra_*.deb
fi
