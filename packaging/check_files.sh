#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Asks the tools of those who will read them whether the files of assets/ for desktops, shells and readers are right.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

quiet() { # a command that says nothing when all is well
    local told
    if ! told=$("$@" 2>&1) || [ -n "$told" ]; then
        printf '%s\n%s\n' "$told" "package: $*" >&2
        return 1
    fi
}

quiet desktop-file-validate assets/*.desktop

folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT
# Without the site's pictures and with them.
sed '/<!-- Where/d; /^  -->/d; s|@AMBRELLE_SITE_ADDRESS@|https://example.org/ambrelle|' assets/*.metainfo.xml \
    >"$folder/org.ambrelle.Ambrelle.metainfo.xml"
for about in assets/*.metainfo.xml "$folder"/*.metainfo.xml; do
    appstreamcli validate --no-net "$about" >/dev/null || appstreamcli validate --no-net --explain "$about"
done
quiet mandoc -Tlint -Wstyle assets/ambrelle.1
LC_ALL=C.UTF-8 quiet sh -c 'man --warnings -l assets/ambrelle.1 >/dev/null'
quiet shellcheck assets/completions/ambrelle.bash
quiet zsh -n assets/completions/_ambrelle
quiet fish --no-execute assets/completions/ambrelle.fish
for icon in assets/*.svg; do
    rsvg-convert -w 16 "$icon" >/dev/null
done

# What kind of file desktops take a theme for, by name and by content.
mkdir -p "$folder/mime/packages"
cp assets/org.ambrelle.Ambrelle.mime.xml "$folder/mime/packages/org.ambrelle.Ambrelle.xml"
XDG_DATA_HOME=$folder quiet update-mime-database "$folder/mime"
theme=application/x-ambrelle-theme+json
is() { # kind, name, content
    local kind
    printf '%s' "$3" >"$folder/$2"
    kind=$(XDG_DATA_HOME=$folder gio info -a standard::content-type "$folder/$2" | sed -n 's/.*content-type: //p')
    [ "$kind" = "$1" ] || {
        echo "package: $2 is taken for $kind, not $1" >&2
        return 1
    }
}
is $theme named.ambrelle '{}'
is $theme without-name '{"accents": {"glass": "blue"}, "format": "Ambrelle Theme", "version": 1}'
is $theme tight '{"format":"Ambrelle Theme"}'
is application/json other.json '{"format": "Another"}'
is text/plain letter 'Dear reader of "format": "Ambrelle Theme"'
