#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what building and running Lumetra need on Debian 12, and with
#   --tests       what the test suite needs
#   --package     what building the Debian package and checking it need
#   --regenerate  what regenerating committed files needs: LibreOffice for the
#                 RTF fixtures (make-rtf-fixtures.sh), an SVG renderer for the
#                 icons (make-icons.sh)
#   --windows     what cross-building for Windows and testing it under Wine
#                 need (scripts/windows.sh)
set -euo pipefail

packages=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev libglx-dev libopengl-dev libvulkan-dev
  fonts-liberation2 qt6-translations-l10n
)
for option in "$@"; do
  case "$option" in
    --tests)
      # GoogleTest; the formatting check; an X server for the tests of real
      # windows and the tools that drive and read them; the PDF reader of the
      # printing test; the checkers of the installed desktop entry, MIME type,
      # AppStream metadata and manual pages.
      packages+=(libgtest-dev git clang-format xvfb xauth xdotool x11-utils poppler-utils
        desktop-file-utils shared-mime-info libglib2.0-bin libxml2-utils appstream man-db)
      ;;
    --package)
      # dpkg-shlibdeps works out the package's dependencies and dpkg-buildflags
      # gives Debian's build flags; lintian checks the package as Debian does.
      packages+=(dpkg-dev lintian)
      ;;
    --regenerate)
      packages+=(libreoffice-writer-nogui librsvg2-bin)
      ;;
    --windows)
      # MinGW-w64 with the posix thread model, which Qt needs; Debian's
      # GoogleTest source, built for Windows; Wine runs the programs and the
      # tests; NSIS makes the installer, icotool its icon, zip the portable
      # copy; xz unpacks Qt, flock guards the Wine prefix, perl runs Qt's
      # configure when Qt is built from its source.
      packages+=(g++-mingw-w64-x86-64-posix googletest wine wine64 nsis icoutils zip xz-utils
        util-linux perl)
      ;;
    *)
      echo "unknown option: $option" >&2
      exit 2
      ;;
  esac
done

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
