#!/usr/bin/env bash
# Packs a build for Debian, has the packages judged, installs them in a clean root of the system, lets tool and
# samples answer there, and removes them again. Whoever is not root has the clean root in a user namespace.
#
#     debian_packages.sh BUILD WORK
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"

# As mmdebstrap calls it again: debian_packages.sh --in-root WORK ROOT
if [ "$1" = --in-root ]; then
    work="$2" root="$3"
    in_root() { chroot "$root" env -i PATH="$PATH" LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
    install() { in_root apt-get install -qq --yes --no-install-recommends "$@" >/dev/null; }
    mkdir "$root/packages"
    cp "$work"/*.deb "$work/Packages" "$here"/*.cmake "$root/packages"
    # A source like any other, so that what a package depends on comes by itself.
    source=/etc/apt/sources.list.d/packages.list
    echo 'deb [trusted=yes] file:/packages ./' >"$root$source"
    in_root apt-get update -qq -o Dir::Etc::SourceList="$source" -o Dir::Etc::SourceParts=- -o APT::Get::List-Cleanup=no

    echo "-- what a user installs"
    install python3-localization-manager
    samples=/usr/share/doc/localization-manager/samples
    [ "$(in_root localize get --root "$samples/tree" --culture ja --scope main App.Name)" = Vosperel ]
    in_root localize check --root "$samples/tree"
    in_root python3 "$samples/album/album.py" "$samples/tree" de </dev/null | grep -x '3 Fotos' >/dev/null
    in_root zcat /usr/share/man/man1/localize.1.gz | grep '^\.TH LOCALIZE' >/dev/null
    in_root bash -n /usr/share/bash-completion/completions/localize
    documents="$root/usr/share/doc/localization-manager"
    grep -roE '\]\([^):#]+' --include='*.md' "$documents" | while IFS=: read -r file link; do
        [ -e "$(dirname "$file")/${link#](}" ] || { echo "$file refers to ${link#](}" >&2; exit 1; }
    done

    echo "-- what a programmer installs"
    install liblocalization-manager-dev g++ cmake make pkg-config
    in_root cmake -P /packages/samples_of_packages.cmake

    echo "-- nothing is left of it"
    in_root apt-get purge -qq --yes '*localization-manager*' >/dev/null
    left="$(find "$root"/{usr,etc,var/cache} -iname '*locali[sz]ation[-_]manager*')"
    [ -z "$left" ] || { echo "$left"; exit 1; }
    exit
fi

build="$1" work="$2"
rm -rf "$work"
mkdir -p "$work"
(cd "$build" && cpack -G DEB -B "$work" >"$work/cpack.log") || { cat "$work/cpack.log"; exit 1; }

echo "-- lintian"
# Not for Debian itself; CPack writes the call of ldconfig beside the trigger; and no other system's compiler looks
# for what was built for this one.
lintian --allow-root --fail-on error,warning \
    --suppress-tags initial-upload-closes-no-bugs,maintscript-calls-ldconfig,pkg-config-unavailable-for-cross-compilation \
    "$work"/*.deb

(cd "$work" && dpkg-scanpackages . >Packages 2>/dev/null)
# The sources of this system that have its essential packages, and apt's settings for how to reach them.
apt-cache madison base-files | awk '$NF == "Packages" { sub("/", " ", $6); print "deb", $5, $6 }' >"$work/sources.list"
[ -s "$work/sources.list" ] || { echo "no package source has base-files; run apt-get update" >&2; exit 1; }
apt-config dump Acquire >"$work/apt.conf"
printf -v again '%q --in-root %q' "$here/debian_packages.sh" "$work"
mmdebstrap --quiet --variant=minbase --dpkgopt=force-unsafe-io --aptopt="$work/apt.conf" \
    --customize-hook="$again \"\$1\"" '' /dev/null "$work/sources.list"
