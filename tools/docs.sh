#!/usr/bin/env bash
# docs.sh FOLDER: makes the handbook with the reference of the public headers in FOLDER/en and
# FOLDER/zh_CN. A warning, and a link that leads nowhere, is a failure.
set -euo pipefail
folder=$(realpath -m "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
QUAYSIDE_VERSION=$(sed -n 's/^project(quayside VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# The headers that are installed, and no others.
QUAYSIDE_HEADERS=$(sed -n '/^set(public_headers/,/)/p' cmake/QuaysideInstall.cmake |
    grep -oE '[a-z]+/[A-Za-z0-9]+\.h' | tr '\n' ' ')
QUAYSIDE_HEADER=$work/header.html
export QUAYSIDE_VERSION QUAYSIDE_HEADERS QUAYSIDE_HEADER

# make_handbook LANGUAGE CODE CHAPTERS: the scripts are left out, which the pages do without.
make_handbook() {
    rm -rf "${folder:?}/$2"
    mkdir -p "$folder/$2"
    sed "s/@LANGUAGE@/${2/_/-}/" docs/header.html >"$QUAYSIDE_HEADER"
    QUAYSIDE_LANGUAGE=$1 QUAYSIDE_CHAPTERS=$3 QUAYSIDE_OUTPUT=$folder/$2 doxygen docs/Doxyfile
    rm -f "$folder/$2"/*.js
}

make_handbook English en docs/handbook
make_handbook Chinese zh_CN docs/handbook/zh_CN
tools/links.py "$folder/en" "$folder/zh_CN"
