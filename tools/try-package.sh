#!/usr/bin/env bash
# try-package.sh FOLDER: installs the packages of FOLDER in a fresh root that holds nothing else, and
# does there what their readers do: starts the application in both languages, asks quaysidectl, builds a
# host library, the examples and programs with the development package alone, and removes everything
# again. Needs root, or a system where mmdebstrap works without it.
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

# Each command once. What is not named below is asked for its help.
quaysidectl registry set HKCU/Try v 7
[ "$(quaysidectl registry get HKCU/Try v)" = 7 ]
quaysidectl registry list HKCU/Try
quaysidectl registry copy HKCU/Try HKCU/Copy
quaysidectl registry compare HKCU/Try HKCU/Copy
quaysidectl registry rename HKCU/Copy Other
quaysidectl registry find v HKCU/Other --names
quaysidectl registry export HKCU/Other other.reg
quaysidectl registry import other.reg --prefix More
quaysidectl registry delete HKCU/Other -r
quaysidectl registry check
timeout --preserve-status -s INT 1 quaysidectl registry watch
printf '[a]\nb=c\n' >a.ini
quaysidectl profile list a.ini
[ "$(quaysidectl profile get a.ini a b --wide)" = c ]
quaysidectl profile set a.ini a d e --narrow
printf '[f]\ng=h\n' | quaysidectl profile merge a.ini --narrow
quaysidectl profile delete a.ini f --narrow
quaysidectl profile check a.ini
quaysidectl profile compare a.ini
quaysidectl files find '/etc/PASSWD'
quaysidectl files stat /usr
quaysidectl fonts list
quaysidectl displays list
quaysidectl input keys
printf secret >phrase
printf abc | quaysidectl crypto encrypt --pass-phrase-file phrase --output cipher
[ "$(quaysidectl crypto decrypt --pass-phrase-file phrase cipher)" = abc ]
quaysidectl crypto digest cipher
[ "$(printf abc | quaysidectl crypto base64)" = YWJj ]
quaysidectl --help | sed -n 's/^  \([a-z]* [a-z0-9]*\) .*/\1/p' | while read -r group name; do
    quaysidectl "$group" "$name" --help >/dev/null
done

# With the development package, and what a compiler needs, a maker's library and programs are built.
apt-get install -y -qq --no-install-recommends ./packages/quayside-dev_*.deb ./packages/quayside-doc_*.deb \
    g++ cmake ninja-build >/dev/null
version=$(dpkg-query -W -f '${Version}' quayside)
# built SOURCES FOLDER
built() {
    cmake -S "$1" -B "$2" -G Ninja -DCONSUMER_VERSION="$version" >/dev/null
    cmake --build "$2" "${@:3}"
}
built author author-build
[ "$(LD_LIBRARY_PATH=/try/author-build quayside)" = "Global 1" ]
quaysidectl host check author-build/libKdPlatformBase.so
cp author-build/libKdPlatformBase.so /usr/local/lib
ldconfig
[ "$(quayside)" = "Global 1" ]
rm /usr/local/lib/libKdPlatformBase.so
ldconfig
built consumer consumer-build --target crypto_consumer
[ "$(consumer-build/crypto_consumer)" = "plain text" ]
quaysidectl host new fresh
built fresh fresh/build
status=0
LD_LIBRARY_PATH=/try/fresh/build timeout 5 quayside 2>fresh.txt || status=$?
[ "$status" -eq 124 ]
grep "^fresh is loaded" fresh.txt

# The sample library is recorded twice, and the recordings are asked.
built /usr/share/doc/quayside-dev/examples/host-library sample
built /usr/share/doc/quayside-dev/examples/page page
page/sample_page try
for recording in first second; do
    LD_LIBRARY_PATH=/try/sample quaysidectl trace record -o $recording.trace timeout 5 quayside || [ $? -eq 124 ]
done
quaysidectl trace dump --calls op:messageBox first.trace | grep IDNO
quaysidectl trace stat --absent first.trace | grep passw
quaysidectl trace leaks first.trace
quaysidectl trace diff first.trace second.trace | grep RegSetValueExW
quaysidectl trace trim first.trace trimmed.trace --calls op:GetBitmap
# The second one began with what the first had stored, which a replay does not have.
quaysidectl trace replay first.trace --skipped || [ $? -eq 1 ]
test -f /usr/share/doc/quayside/en/index.html

# On a display, in both languages, until the user ends it.
apt-get install -y -qq --no-install-recommends xvfb xdotool >/dev/null
mkfifo number
Xvfb -displayfd 3 -screen 0 1280x1024x24 3>number >/dev/null 2>&1 &
server=$!
read -r number <number
export DISPLAY=:$number
for language in en zh-CN; do
    (cd /usr/share/quayside && QT_QPA_PLATFORM=xcb exec timeout 120 quayside /language "$language") &
    application=$!
    # The window may be gone before the key is released.
    timeout 60 xdotool search --sync --onlyvisible --class quayside windowfocus --sync key ctrl+q || true
    wait "$application"
done
kill "$server"

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
