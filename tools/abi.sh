#!/usr/bin/env bash
# abi.sh: compares the binary interface to host libraries with its record in abi/, for each architecture
# that has a compiler here, and prints what would break. With --record, records it anew.
set -euo pipefail
build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT
status=0
for row in amd64:x86_64-linux-gnu-g++ arm64:aarch64-linux-gnu-g++; do
    architecture=${row%%:*}
    compiler=${row#*:}
    command -v "$compiler" >/dev/null || continue
    library=$build/interface.so
    # Classes are described whole also where the file uses nothing of them.
    "$compiler" -std=c++17 -g -O0 -fPIC -shared -I. -femit-class-debug-always \
        -o "$library" abi/interface.cpp
    if [ "${1:-}" = --record ]; then
        abidw --no-show-locs --no-comp-dir-path --no-corpus-path \
            --out-file "abi/$architecture.abi" "$library"
    else
        abidiff "abi/$architecture.abi" "$library" || status=1
    fi
done
exit "$status"
