#!/usr/bin/env bash
# Installs what is needed, builds with warnings as errors, and runs the whole
# test suite through CTest; then once more under AddressSanitizer and UBSan.
# --quick skips the sanitizer pass.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --tests
export QT_QPA_PLATFORM=offscreen

BUILD_DIR=build bash scripts/build.sh -DLUMETRA_WERROR=ON
ctest --test-dir build --output-on-failure --timeout 300 -j "$(nproc)"

if [ "${1:-}" != "--quick" ]; then
  export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  BUILD_DIR=build-sanitize BUILD_TYPE=Debug bash scripts/build.sh -DLUMETRA_WERROR=ON -DLUMETRA_SANITIZE=ON -DLUMETRA_BENCH=OFF
  ctest --test-dir build-sanitize --output-on-failure --timeout 600 -j "$(nproc)"
fi
