#!/usr/bin/env bash
# try-package.sh FOLDER: installs the packages of FOLDER in a fresh root that holds nothing else, and
# does there what their readers do: starts the application in both languages, asks quaysidectl, builds a
# host library and programs with the development package alone, and removes everything again. Needs
# root, or a system where mmdebstrap works without it.
set -euo pipefail
folder=$(realpath "$1")
sources=$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/try/packages"
cp "$folder"/*.deb "$work/try/packages"
rm -f "$work"/try/packages/*-dbgsym_*
cp -r "$sources/tests/cmake/author" "$sources/tests/cmake/consumer" "$work/try"

cat >"$work/try/inside.sh" <<'INSIDE'
set -eux
export DEBIAN_FRONTEND=noninteractive HOME=/try/home XDG_RUNTIME_DIR=/try/run QT_QPA_PLATFORM=offscreen
mkdir -p "$HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR" && cd /try
find / -xdev -type f ! -path '/proc/*' ! -path '/try/*' | sort >before

# started ARGS: the application starts, and runs until it is stopped.
started() {
    status=0
    timeout 5 quayside "$@" || status=$?
    [ "$status" -eq 124 ]
}

apt-get install -y -qq --no-install-recommends ./packages/quayside_*.deb ./packages/libkd*.deb >/dev/null
started
cd /usr/share/quayside && started /language zh-CN && cd /try
[ "$(quaysidectl --version)" = "quaysidectl $(dpkg-query -W -f '${Version}' quayside)" ]
quaysidectl registry set HKCU/Try v 7
[ "$(quaysidectl registry get HKCU/Try v)" = 7 ]
printf '[a]\nb=c\n' >a.ini
[ "$(quaysidectl profile get a.ini a b --wide)" = c ]
quaysidectl files stat /usr >/dev/null
quaysidectl fonts list >/dev/null
quaysidectl displays list >/dev/null
quaysidectl input keys >/dev/null
[ "$(printf abc | quaysidectl crypto base64)" = YWJj ]

# With the development package, and what a compiler needs, a maker's library and programs are built.
apt-get install -y -qq --no-install-recommends ./packages/quayside-dev_*.deb ./packages/quayside-doc_*.deb \
    g++ cmake ninja-build >/dev/null
version=$(dpkg-query -W -f '${Version}' quayside)
cmake -S author -B author-build -G Ninja >/dev/null
cmake --build author-build
[ "$(LD_LIBRARY_PATH=/try/author-build quayside)" = "Global 1" ]
quaysidectl host check author-build/libKdPlatformBase.so
cp author-build/libKdPlatformBase.so /usr/local/lib
ldconfig
[ "$(quayside)" = "Global 1" ]
rm /usr/local/lib/libKdPlatformBase.so
ldconfig
cmake -S consumer -B consumer-build -G Ninja -DCONSUMER_VERSION="$version" >/dev/null
cmake --build consumer-build --target crypto_consumer
[ "$(consumer-build/crypto_consumer)" = "plain text" ]

# What the user keeps stays; nothing else does.
apt-get purge -y -qq quayside quayside-dev quayside-doc libkdplatformbase-standin >/dev/null
test -f "$HOME/.local/share/quayside/registry.ini"
find / -xdev -type f ! -path '/proc/*' ! -path '/try/*' | sort >after
if comm -13 before after | grep -i -e quayside -e kdplatform; then exit 1; fi
INSIDE

# shellcheck disable=SC2016 # the hook's own parameter
mmdebstrap --variant=apt --quiet --customize-hook="copy-in $work/try /" \
    --customize-hook='chroot "$1" bash /try/inside.sh' bookworm /dev/null
echo "The packages of $folder work in a fresh root."
