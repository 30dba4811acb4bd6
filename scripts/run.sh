#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is needed, builds the program alone (no test, benchmark or
# tool) into build/, and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake --preset program
cmake --build --preset program
exec build/bin/lumetra "$@"
