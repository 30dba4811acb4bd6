#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build under /usr in a temporary DESTDIR and checks what a desktop
# gets from it: the file tree, the program's first start, the menu entry, the
# bill type and the AppStream metadata. Each check is one step; a step reports every fault it finds.
# Usage: install_test.sh BUILD_DIR SOURCE_DIR VERSION
set -euo pipefail
build=$1
source=$2
version=$3
app_id=it.lumetra.Lumetra
bill_type=application/x-lumetra-parcella
bill_icon=application-x-lumetra-parcella

for tool in cmake cmp od gzip man desktop-file-validate xmllint update-mime-database gio appstreamcli Xvfb xdotool xprop; do
    if ! command -v "$tool" >/dev/null; then
        echo "$tool is missing: run scripts/install-deps.sh --tests" >&2
        exit 1
    fi
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
usr=$work/root/usr
faults=0
fault() {
    echo "  FAULT: $*"
    faults=$((faults + 1))
}

# The value of KEY in the desktop entry (unlocalised).
desktop_key() {
    sed -n "s/^$1=//p" "$usr/share/applications/$app_id.desktop"
}

# The type the desktop's MIME database, built from the installed tree alone,
# gives to a file.
content_type() {
    XDG_DATA_DIRS=$usr/share XDG_DATA_HOME=$work/home GIO_USE_VFS=local \
        gio info -a standard::content-type "$1" | sed -n 's/^ *standard::content-type: //p'
}

check_tree() {
    local expected=(
        bin/lumetra
        bin/lumetra-render
        share/applications/$app_id.desktop
        share/lumetra/istruzioni.rtf
        share/lumetra/tariffe_database.txt
        share/metainfo/$app_id.metainfo.xml
        share/mime/packages/lumetra-parcella.xml
        share/icons/hicolor/scalable/apps/$app_id.svg
        share/icons/hicolor/scalable/mimetypes/$bill_icon.svg
        share/doc/lumetra/copyright
        share/doc/lumetra/changelog.Debian.gz
        share/lintian/overrides/lumetra
        share/man/man1/lumetra.1.gz
        share/man/man1/lumetra-render.1.gz
    )
    local size
    for size in 16 22 24 32 48 64 128 256; do
        expected+=("share/icons/hicolor/${size}x$size/apps/$app_id.png"
            "share/icons/hicolor/${size}x$size/mimetypes/$bill_icon.png")
    done
    # Exactly these files: no test, benchmark or build tool slips in.
    diff <(printf '%s\n' "${expected[@]}" | sort) <(cd "$usr" && find . ! -type d | sed 's|^\./||' | sort) ||
        fault "the installed tree differs (< expected, > installed)"

    local program
    for program in lumetra lumetra-render; do
        [ -x "$usr/bin/$program" ] || fault "bin/$program is not executable"
    done
    local data
    for data in tariffe_database.txt istruzioni.rtf; do
        cmp -s "$source/Resources/$data" "$usr/share/lumetra/$data" || fault "share/lumetra/$data differs from Resources/"
    done
    # A PNG's width and height are the big-endian words at bytes 16 and 20.
    local png width height
    for png in "$usr"/share/icons/hicolor/*x*/*/*.png; do
        [ -f "$png" ] || continue
        size=$(basename "$(dirname "$(dirname "$png")")")
        read -r width height < <(od -An -tu1 -j16 -N8 "$png" |
            awk '{ print $1 * 16777216 + $2 * 65536 + $3 * 256 + $4, $5 * 16777216 + $6 * 65536 + $7 * 256 + $8 }')
        [ "${width}x$height" = "$size" ] || fault "the icon in $size is ${width}x$height"
    done
}

check_desktop_entry() {
    local entry=$usr/share/applications/$app_id.desktop report
    report=$(desktop-file-validate "$entry" 2>&1) || true
    [ -z "$report" ] || fault "desktop-file-validate: $report"

    local exec icon mime
    exec=$(desktop_key Exec)
    [ -x "$usr/bin/${exec%% *}" ] || fault "Exec=$exec names no installed program"
    icon=$(desktop_key Icon)
    [ -f "$usr/share/icons/hicolor/scalable/apps/$icon.svg" ] || fault "Icon=$icon names no installed icon"
    mime=$(desktop_key MimeType)
    [ "$mime" = "$bill_type;" ] || fault "MimeType=$mime should be $bill_type;"
}

check_mime_type() {
    local mime=$usr/share/mime
    xmllint --noout "$mime/packages/lumetra-parcella.xml" || fault "the MIME package is not well-formed XML"
    XDG_DATA_DIRS=$usr/share update-mime-database "$mime" || fault "update-mime-database failed"

    local files=$work/files
    mkdir -p "$files"
    # A bill as the program writes it is recognised by its first line alone;
    # any file is by its extension, in any case.
    cp "$source/tests/data/parcella/esempio.qX9" "$files/bill"
    printf 'Causa\r' >"$files/Vuota.QX9"
    local file got
    for file in bill Vuota.QX9; do
        got=$(content_type "$files/$file")
        [ "$got" = "$bill_type" ] || fault "$file is taken for '$got', not $bill_type"
    done
    # The file manager shows a bill with the type's own icon, an installed one.
    local icon
    icon=$(XDG_DATA_DIRS=$usr/share XDG_DATA_HOME=$work/home GIO_USE_VFS=local \
        gio info -a standard::icon "$files/bill" | sed -n 's/^ *standard::icon: \([^,]*\).*/\1/p')
    [ "$icon" = "$bill_icon" ] || fault "a bill is shown with the icon '$icon', not $bill_icon"
    [ -f "$usr/share/icons/hicolor/scalable/mimetypes/$bill_icon.svg" ] || fault "the icon $bill_icon is not installed"
    # The mark must end with a carriage return, as the program writes it.
    printf '***PARCELLA***\nCausa\n' >"$files/not-a-bill"
    got=$(content_type "$files/not-a-bill")
    [ "$got" != "$bill_type" ] || fault "not-a-bill is taken for a bill"
}

# The installed program started by a new user, on a display of its own: the
# tariff and the manual are found under share/, the first-run form writes
# utenza.txt in the user's own folder, and nothing is written into the install.
check_first_start() {
    local home=$work/utente display=:$((100 + RANDOM % 800)) xvfb program wid
    mkdir -p "$home" "$work/run"
    chmod 700 "$work/run"
    local before
    before=$(cd "$usr" && find . | sort)
    Xvfb "$display" -screen 0 1280x900x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb=$!
    for _ in $(seq 50); do DISPLAY=$display xdotool getdisplaygeometry >/dev/null 2>&1 && break; sleep 0.1; done
    HOME=$home USER=lumetra-install-test XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME= DISPLAY=$display \
        QT_QPA_PLATFORM=xcb "$usr/bin/lumetra" >"$work/lumetra.log" 2>&1 &
    program=$!
    export DISPLAY=$display
    if wid=$(timeout 20 xdotool search --sync --name '^senza titolo$' | head -1) && [ -n "$wid" ]; then
        xdotool mousemove --window "$wid" 200 170 click 1 type --delay 20 'Avv. Prova Installata'
        xdotool mousemove --window "$wid" 300 431 click 1 # Registra
        # The main window, 1004 points wide, and not a message about a missing tariff.
        local width=0
        for _ in $(seq 100); do
            for wid in $(xdotool search --name '^Lumetra$' 2>/dev/null); do
                width=$(xdotool getwindowgeometry "$wid" | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p')
                [ "${width:-0}" -ge 1000 ] && break 2
            done
            sleep 0.1
        done
        [ "${width:-0}" -ge 1000 ] || fault "the main window did not come: is the tariff found? $(cat "$work/lumetra.log")"
        # The desktop ties the window to its menu entry by the window's class,
        # the second word of WM_CLASS, compared exactly.
        local wm_class expected_class
        wm_class=$(xprop -id "$wid" WM_CLASS 2>&1) || true
        expected_class=$(desktop_key StartupWMClass)
        [[ $wm_class == *", \"$expected_class\"" ]] ||
            fault "the main window's $wm_class does not match StartupWMClass=$expected_class"
        grep -q '^Avv. Prova Installata$' "$home/.local/share/lumetra/utenza.txt" 2>/dev/null ||
            fault "the first-run form wrote no utenza.txt under \$HOME/.local/share/lumetra"
    else
        fault "the first-run form did not come: $(cat "$work/lumetra.log")"
    fi
    kill "$program" "$xvfb" 2>/dev/null || true
    wait "$program" "$xvfb" 2>/dev/null || true
    unset DISPLAY
    [ "$(cd "$usr" && find . | sort)" = "$before" ] || fault "the program wrote into the installed tree"
}

# What Debian asks of a package's documentation: the copyright file in its
# machine-readable form, a changelog whose newest entry is this version, and
# manual pages that man renders without a warning (lintian's own check).
check_documentation() {
    local doc=$usr/share/doc/lumetra
    local format=https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/ changelog
    [ "$(sed -n 1p "$doc/copyright")" = "Format: $format" ] ||
        fault "the copyright file is not in Debian's machine-readable format"
    changelog=$(gzip -dc "$doc/changelog.Debian.gz") || fault "changelog.Debian.gz is no gzip file"
    [[ ${changelog%%$'\n'*} == "lumetra ($version-"* ]] ||
        fault "the newest changelog entry is '${changelog%%$'\n'*}', the project is $version"
    local page report
    for page in "$usr"/share/man/man1/*.1.gz; do
        report=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null) ||
            fault "man cannot render $(basename "$page"): $report"
        [ -z "$report" ] || fault "man warns on $(basename "$page"): $report"
    done
}

check_metainfo() {
    local metainfo=$usr/share/metainfo/$app_id.metainfo.xml report
    # The whole tree, so that the desktop entry the metainfo names is looked
    # for too. Infos are advice; warnings and errors are faults.
    if ! report=$(appstreamcli validate-tree --no-net "$work/root" 2>&1) || grep -q '^ *[EW]:' <<<"$report"; then
        fault "appstreamcli validate-tree: $report"
    fi
    local released
    released=$(xmllint --xpath 'string(/component/releases/release[1]/@version)' "$metainfo")
    [ "$released" = "$version" ] || fault "the newest release in the metainfo is '$released', the project is $version"
}

echo "installing $build into $work/root"
DESTDIR=$work/root cmake --install "$build" --prefix /usr >/dev/null

# check_tree comes first, as update-mime-database adds its caches to the tree.
steps=(check_tree check_first_start check_desktop_entry check_mime_type check_documentation check_metainfo)
for step in "${steps[@]}"; do
    before=$faults
    echo "$step"
    "$step"
    [ "$faults" -eq "$before" ] && echo "  ok"
done

echo "${#steps[@]} steps, $faults faults"
[ "$faults" -eq 0 ]
