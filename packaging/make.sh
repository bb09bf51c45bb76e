#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the program as packages have it and puts into build/packages: Debian's package, and the archive of the folder
# that needs nothing installed, with its signature and the description of the release. The same commit gives the same
# bytes. The environment may name, and otherwise CMake's settings hold:
#   AMBRELLE_UPDATE_FEED   address of the description; without one the folder never updates itself
#   AMBRELLE_UPDATE_KEYS   public keys, separated by semicolons; any of them may have signed a newer version. A feed
#                          without any is refused: the folder would never update itself
#   AMBRELLE_SIGNING_KEY   file with the secret key, made by minisign -G; without one there is no feed.json
#   AMBRELLE_MAINTAINER    who answers for the package: "Name <address>"
#   AMBRELLE_SITE_ADDRESS  where the site of --export-site is published, without a slash at its end: shops show its pictures
#   AMBRELLE_DOWNLOAD      where people get the program: the site has a button for it
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
umask 022
export LC_ALL=C.UTF-8 TZ=UTC
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
build="build-package"
packages=build/packages
stage=$build/stage
folder=$stage/Ambrelle

die() {
    echo "package: $*" >&2
    exit 1
}

setting() { # of CMake's cache
    sed -n "s/^$1:[A-Z]*=//p" $build/CMakeCache.txt
}

compile() {
    local options=() name
    for name in AMBRELLE_UPDATE_FEED AMBRELLE_UPDATE_KEYS AMBRELLE_MAINTAINER AMBRELLE_SITE_ADDRESS AMBRELLE_DOWNLOAD; do
        [ -z "${!name+x}" ] || options+=("-D$name=${!name}")
    done
    if command -v ccache >/dev/null; then
        options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    # Fresh: what the environment named last time is forgotten.
    cmake --fresh --preset package "${options[@]}" >/dev/null
    feed=$(setting AMBRELLE_UPDATE_FEED)
    keys=$(setting AMBRELLE_UPDATE_KEYS)
    [ -z "$feed" ] || [ -n "$keys" ] ||
        die "a feed without public keys (AMBRELLE_UPDATE_KEYS): the folder would never update itself"
    cmake --build $build --target ambrelle
}

make_deb() {
    local unpacked=$stage/deb
    cpack --config $build/CPackConfig.cmake -B $build/cpack >$build/cpack.log || {
        cat $build/cpack.log >&2
        die "no package for Debian"
    }
    cp $build/cpack/*.deb $packages
    dpkg-deb --extract $packages/*.deb $unpacked
    packaging/check_program.py $unpacked/usr/bin/*
    appstreamcli validate-tree --no-net $unpacked >/dev/null
    # The system keeps it up to date.
    ! grep -rqF AMUpdateFeedURL $unpacked/usr/share || die "Debian's package knows a feed"
    [ ! -e $unpacked/usr/lib/ambrelle ] || die "Debian's package holds what belongs into the folder"
    lintian --fail-on error,warning $packages/*.deb
}

make_folder() {
    cmake --install $build --prefix $folder --strip --component desktop >/dev/null
    cmake --install $build --prefix $folder --component fonts >/dev/null
    cmake --install $build --prefix $folder --strip --component folder >/dev/null
    cmake "-DFOLDER=$folder" "-DPLUGINS=$(qmake6 -query QT_INSTALL_PLUGINS)" "-DSOURCES=$stage/sources" \
        -P packaging/gather.cmake
    packaging/credits.py $folder $stage/sources
    cp LICENSE $folder/share/doc/ambrelle/
    # Of the older kind, which holds for what the libraries themselves look for; and no other program inherits it.
    # shellcheck disable=SC2016
    patchelf --force-rpath --set-rpath '$ORIGIN/../lib/ambrelle' $folder/bin/ambrelle
    printf '[Paths]\nPrefix=..\nPlugins=lib/ambrelle/plugins\n' >$folder/bin/qt.conf
    # What is in the folder and not on this list is the user's.
    touch $folder/share/ambrelle/files.txt
    (cd $folder && find . -type f | LC_ALL=C sort >share/ambrelle/files.txt)
    find $folder/bin $folder/lib -type f -exec sh -c 'head -c 4 "$1" | grep -q ELF && test -x "$1"' - '{}' \; -print0 |
        xargs -0 packaging/check_program.py --folder
    [ -z "$(find $folder ! -type f ! -type d)" ] || die "there are links in the folder"
    grep -qF "${feed:-version}" $folder/share/ambrelle/org.ambrelle.Ambrelle.json || die "the folder knows no feed"
    # It has to start with nothing of this machine's toolkit.
    QT_QPA_PLATFORM=offscreen $folder/bin/ambrelle --version
}

sign() { # archive, version
    local key verified=0
    if [ -z "${AMBRELLE_SIGNING_KEY-}" ]; then
        echo "package: the archive is unsigned, so no program takes it; AMBRELLE_SIGNING_KEY names a key" >&2
        return
    fi
    minisign -S -s "$AMBRELLE_SIGNING_KEY" -m "$1" -t "org.ambrelle.Ambrelle $2"
    for key in ${keys//;/ }; do
        ! minisign -V -q -P "$key" -m "$1" || verified=1
    done
    [ $verified = 1 ] || [ -z "$keys" ] || die "the key is none of those that the program knows"
}

rehearse() { # archive, version
    local believed
    [ -e "$1.minisig" ] && [ -n "$keys" ] || return 0
    # What former versions do with it.
    IFS=';' read -ra believed <<<"$keys"
    mkdir -m 700 $stage/unpacked
    env -i $folder/lib/ambrelle/ambrelle-update $stage/unpacked "$1.minisig" "org.ambrelle.Ambrelle $2" "${believed[@]}" \
        <"$1" >/dev/null || die "no program takes the archive"
    diff -r $folder $stage/unpacked/Ambrelle || die "something else comes of the archive"
    [ "$(env -i $stage/unpacked/Ambrelle/bin/ambrelle --version)" = "Ambrelle $2" ] || die "what is unpacked does not start"
}

describe() { # archive, version
    if [ -z "$feed" ]; then
        echo "package: no address of a feed is set (AMBRELLE_UPDATE_FEED): the folder will not update itself" >&2
        return
    fi
    local description=$packages/feed.json
    if [ ! -e "$1.minisig" ]; then
        # Programs that learned of it would fetch it twice a day in vain.
        description+=.unsigned
        echo "package: feed.json.unsigned is to be named feed.json once the archive is signed" >&2
    fi
    printf '{"version":"%s","url":"%s/%s","sha256":"%s"}\n' "$2" "${feed%/*}" "$(basename "$1")" \
        "$(sha256sum "$1" | cut -d ' ' -f 1)" >"$description"
}

rm -rf $packages $stage $build/cpack
mkdir -p $packages $stage
compile
version=$(setting CMAKE_PROJECT_VERSION)
archive=$packages/Ambrelle-$version-$(uname -m).zip
make_deb
make_folder
packaging/zip_folder.py $folder "$archive"
sign "$archive" "$version"
rehearse "$archive" "$version"
describe "$archive" "$version"
ls -l $packages
