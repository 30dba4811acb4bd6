#!/usr/bin/env bash
# Installs what is needed, builds, and starts Lumetra.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh
exec build/bin/lumetra "$@"
