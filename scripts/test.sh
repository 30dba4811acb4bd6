#!/usr/bin/env bash
# Installs what is needed, checks the formatting, builds with warnings as
# errors, and runs the whole test suite through CTest; builds once more in
# Release (warnings as errors there too, as the optimiser warns of its own);
# then runs the suite again under AddressSanitizer and UBSan.
# --quick skips the Release build and the sanitizer pass.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --tests
export QT_QPA_PLATFORM=offscreen

echo "== clang-format"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

BUILD_DIR=build bash scripts/build.sh -DLUMETRA_WERROR=ON
ctest --test-dir build --output-on-failure --timeout 300 -j "$(nproc)"

if [ "${1:-}" != "--quick" ]; then
  echo "== Release"
  BUILD_DIR=build-release BUILD_TYPE=Release bash scripts/build.sh -DLUMETRA_WERROR=ON -DLUMETRA_TESTS=OFF

  echo "== AddressSanitizer and UBSan"
  export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  BUILD_DIR=build-sanitize BUILD_TYPE=Debug bash scripts/build.sh -DLUMETRA_WERROR=ON -DLUMETRA_SANITIZE=ON -DLUMETRA_BENCH=OFF
  ctest --test-dir build-sanitize --output-on-failure --timeout 600 -j "$(nproc)"
fi
