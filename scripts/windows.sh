#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Lumetra for Windows on Debian 12, and checks and packs it:
#  1. installs what is needed (scripts/install-deps.sh --windows);
#  2. takes Qt 6.4.2 for MinGW from the cache folder, else unpacks the
#     ready-built one from ../shared/windows/, else builds it from Qt's source
#     (../shared/windows/, else Debian's source package) into the cache;
#  3. cross-builds into build-windows/ (or $BUILD_DIR) with warnings as errors;
#  4. runs the whole test suite under Wine;
#  5. packs build-windows/lumetra-<version>-setup.exe (NSIS) and
#     build-windows/lumetra-<version>-windows.zip (the same files, portable).
# The cache folder is $LUMETRA_WINDOWS_CACHE, else ~/.cache/lumetra-windows.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
build_dir=${BUILD_DIR:-build-windows}
jobs=$(nproc)

took() { echo "== time, $1: $(($SECONDS - $2)) s"; }

start=$SECONDS
bash scripts/install-deps.sh --windows
took "packages" $start

# -- Qt for Windows
qt_version=6.4.2
cache=${LUMETRA_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/lumetra-windows}
qt=$cache/qt-$qt_version-mingw64
shared=$root/../shared/windows
start=$SECONDS
if [ ! -f "$qt/.complete" ]; then
  rm -rf "$qt"
  mkdir -p "$cache"
  if [ -f "$shared/qt-$qt_version-mingw64.tar.xz" ]; then
    echo "== Unpacking the ready-built Qt $qt_version for MinGW into $cache"
    tar -xJf "$shared/qt-$qt_version-mingw64.tar.xz" -C "$cache"
  else
    echo "== Building Qt $qt_version for MinGW from its source into $cache (the better part of an hour)"
    work=$cache/qt-source
    rm -rf "$work"
    mkdir -p "$work"
    source_tar=$shared/qt6-base_$qt_version+dfsg.orig.tar.xz
    if [ ! -f "$source_tar" ]; then
      # Debian's own source package, through a source list of this script's
      # own: the system's lists stay as they are.
      apt=$work/apt
      mkdir -p "$apt/parts" "$apt/lists/partial"
      printf '%s\n' 'Types: deb-src' 'URIs: http://deb.debian.org/debian' 'Suites: bookworm' 'Components: main' \
        'Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg' >"$apt/parts/debian-src.sources"
      options=(-o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$apt/parts" -o Dir::State::Lists="$apt/lists")
      { apt-get "${options[@]}" update && (cd "$work" &&
        apt-get "${options[@]}" source --download-only qt6-base="$qt_version"+dfsg-10); } || {
        echo "Qt's source is neither in $shared nor to be had from Debian's archive" >&2
        exit 1
      }
      source_tar=$work/qt6-base_$qt_version+dfsg.orig.tar.xz
    fi
    tar -xJf "$source_tar" -C "$work"
    # The toolchain goes inside the installed Qt, which loads it from there.
    mkdir -p "$qt/lib/cmake/Qt6"
    cp cmake/mingw-w64-toolchain.cmake "$qt/lib/cmake/Qt6/mingw-w64-toolchain.cmake"
    mkdir -p "$work/build"
    # Pen tablets: Debian's source lacks the wintab header the plugin wants.
    (cd "$work/build" && "$work"/qtbase-everywhere-src-$qt_version/configure -prefix "$qt" \
      -xplatform win32-g++ -device-option CROSS_COMPILE=x86_64-w64-mingw32- -qt-host-path /usr \
      -release -shared -nomake tests -nomake examples -no-opengl -no-dbus -no-icu -no-openssl \
      -no-feature-sql -no-feature-tabletevent -qt-zlib -qt-pcre -qt-libpng -qt-libjpeg -qt-freetype \
      -qt-harfbuzz -qt-doubleconversion -- \
      -DCMAKE_TOOLCHAIN_FILE="$qt/lib/cmake/Qt6/mingw-w64-toolchain.cmake" \
      -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake)
    cmake --build "$work/build" --parallel "$jobs"
    cmake --install "$work/build"
    rm -rf "$work"
  fi
  touch "$qt/.complete"
fi
took "Qt for Windows" $start

# -- Build
start=$SECONDS
"$qt/bin/qt-cmake" -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=Release -DLUMETRA_WERROR=ON \
  -DLUMETRA_BENCH=OFF
cmake --build "$build_dir" --parallel "$jobs"
took "build" $start

# -- Tests under Wine, in the build's own Wine prefix. One Wine server for the
# whole run, ended afterwards; Wine's own services (COM's among them) are
# started first with no output of theirs: started by a test, they would hold
# its output open, and CTest would wait for it until the run ends.
start=$SECONDS
export WINEPREFIX=$root/$build_dir/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
if [ ! -f "$WINEPREFIX/system.reg" ]; then
  mkdir -p "$WINEPREFIX"
  # Its exit status says little (it may report a service it could not start);
  # the prefix it leaves is what counts.
  wine wineboot -i </dev/null >/dev/null 2>&1 || true
  # The registry reaches its files when the Wine server ends.
  wineserver -w
  [ -f "$WINEPREFIX/system.reg" ] || { echo "wineboot made no Wine prefix in $WINEPREFIX" >&2; exit 1; }
fi
wineserver -p
trap 'wineserver -k 2>/dev/null || true' EXIT
wine net start rpcss </dev/null >/dev/null 2>&1 || true
took "Wine prefix" $start
start=$SECONDS
ctest --test-dir "$build_dir" --output-on-failure --timeout 600 -j "$jobs"
took "tests under Wine" $start

# -- Installer and zip
start=$SECONDS
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build_dir/CMakeCache.txt")
stage=$root/$build_dir/stage/Lumetra
rm -rf "$root/$build_dir/stage"
cmake --install "$build_dir" --prefix "$stage"
setup=$root/$build_dir/lumetra-$version-setup.exe
zip=$root/$build_dir/lumetra-$version-windows.zip
makensis -V2 -DVERSION="$version" -DSTAGE="$stage" -DOUTFILE="$setup" packaging/windows/lumetra.nsi
rm -f "$zip"
(cd "$root/$build_dir/stage" && zip -qr "$zip" Lumetra)
took "installer and zip" $start
echo "Built $setup"
echo "Built $zip"
