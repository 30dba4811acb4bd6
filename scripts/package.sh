#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package of Lumetra from a clean Release build in
# build-package/, without tests or benchmarks, with the flags Debian builds its
# own packages with (dpkg-buildflags: fortified functions, stack protector,
# read-only relocations bound at start-up); the .deb lands there. Extra
# arguments go to cmake (CI adds -DLUMETRA_WERROR=ON).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh --package

# CMake takes CXXFLAGS and LDFLAGS from the environment at its first run; the
# preprocessor's flags (_FORTIFY_SOURCE) go with the compiler's.
export DEB_BUILD_MAINT_OPTIONS=${DEB_BUILD_MAINT_OPTIONS:-hardening=+all}
CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
export CXXFLAGS LDFLAGS

rm -rf build-package
cmake --preset package "$@"
cmake --build --preset package
(cd build-package && cpack)
echo "Built $(ls build-package/lumetra_*.deb)"
