#!/usr/bin/env bash
# package.sh FOLDER [ARCHITECTURE]: makes the Debian packages of the last commit in FOLDER, then asks
# lintian, blhc and the validators about them. The source lies there in a folder of its own, so that
# nothing that is not committed gets in.
set -euo pipefail
folder=$1
architecture=${2:-$(dpkg --print-architecture)}

rm -rf "$folder"
mkdir -p "$folder/quayside"
git archive HEAD | tar -x -C "$folder/quayside"
cd "$folder/quayside"
DEB_BUILD_OPTIONS="nocheck parallel=$(nproc) ${DEB_BUILD_OPTIONS:-}"
export DEB_BUILD_OPTIONS
# The documentation is the same for all architectures, and made natively.
build=binary
[ "$architecture" = "$(dpkg --print-architecture)" ] || build=any
dpkg-buildpackage --host-arch "$architecture" --build="$build" --no-sign >../build.log 2>&1 || {
    tail -n 40 ../build.log >&2
    exit 1
}
cd ..
desktop-file-validate quayside/debian/quayside/usr/share/applications/quayside.desktop
appstreamcli validate --no-net quayside/packaging/quayside.metainfo.xml
# A call that only asks the compiler for its macros, as Qt's tools do where they cross-build, makes nothing.
blhc --all --ignore-line '.* -dM -E .*' build.log
lintian --pedantic --fail-on error,warning,pedantic ./*.changes
ls -1 "$PWD"/*.deb
