#!/usr/bin/env bash
# Installs what building, running and testing Lumetra need on Debian 12.
#   --tests    also what the test suite needs
#   --package  also what building the Debian package needs
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev libglx-dev libopengl-dev libvulkan-dev
  libgtest-dev
  fonts-liberation2 qt6-translations-l10n
  xvfb xauth
)
case "${1:-}" in
  --tests)
    # Real readers and writers of RTF for the end-to-end checks; the checkers
    # of the installed desktop entry, MIME type and AppStream metadata.
    packages+=(libreoffice-writer-nogui poppler-utils
      desktop-file-utils shared-mime-info libglib2.0-bin libxml2-utils appstream xdotool
      clang-format)
    ;;
  --package)
    # dpkg-shlibdeps works out the package's dependencies.
    packages+=(dpkg-dev)
    ;;
esac

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "These Debian packages are missing: ${missing[*]}" >&2
    echo "Install them as root with:" >&2
    echo "  apt-get update && apt-get install -y --no-install-recommends ${missing[*]}" >&2
    exit 1
  fi
  sudo=(sudo)
fi
"${sudo[@]}" apt-get update
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}"
