#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Puts the licence's SPDX line at the head of every tracked source file that
# lacks one, in the comment form of its language; with --check, only lists
# those files and fails if there is any. The AppStream metadata carry their
# own licence, CC0-1.0.
set -euo pipefail
cd "$(dirname "$0")/.."

check=false
[ "${1:-}" = "--check" ] && check=true

licence_of() {
    case "$1" in
        *.metainfo.xml) echo CC0-1.0 ;;
        *) echo GPL-3.0-or-later ;;
    esac
}

# The line for a file, or nothing for a file this script does not know.
spdx_line() {
    local id
    id="SPDX-License-Identifier: $(licence_of "$1")"
    case "$1" in
        *.cpp | *.h | *.h.in | *.rc.in) echo "// $id" ;;
        *CMakeLists.txt | *.cmake | *.sh | .ci/* | *.desktop | *.dict) echo "# $id" ;;
        *.xml | *.qrc | *.svg) echo "<!-- $id -->" ;;
        *.1.in) echo ".\\\" $id" ;;
        *.nsi) echo "; $id" ;;
    esac
}

missing=()
while IFS= read -r file; do
    [ -n "$(spdx_line "$file")" ] || continue
    head -n 3 "$file" | grep -q 'SPDX-License-Identifier:' || missing+=("$file")
done < <(git ls-files '*.cpp' '*.h' '*.h.in' '*CMakeLists.txt' '*.cmake' '*.sh' '.ci/*' '*.desktop' '*.dict' \
    '*.xml' '*.qrc' '*.svg' '*.1.in' '*.nsi' '*.rc.in')

if $check; then
    [ ${#missing[@]} -eq 0 ] && exit 0
    echo "These files lack an SPDX-License-Identifier line at their head (scripts/spdx.sh adds it):" >&2
    printf '  %s\n' "${missing[@]}" >&2
    exit 1
fi

for file in "${missing[@]}"; do
    line=$(spdx_line "$file")
    first=$(head -n 1 "$file")
    # A shebang or an XML declaration stays first.
    if [[ $first == '#!'* || $first == '<?xml'* ]]; then
        { printf '%s\n%s\n' "$first" "$line"; tail -n +2 "$file"; } >"$file.spdx"
    else
        { printf '%s\n' "$line"; cat "$file"; } >"$file.spdx"
    fi
    chmod --reference="$file" "$file.spdx"
    mv "$file.spdx" "$file"
    echo "$file"
done
