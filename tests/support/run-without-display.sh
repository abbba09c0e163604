#!/usr/bin/env bash
# run-without-display.sh BUILD [ARGS]: starts the application on a virtual display of its own, saves
# BUILD/window.png, closes the window as a user would and ends with the application's status.
set -euo pipefail
build=$1
shift
picture=$build/window.png
rm -f "$picture"

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x800x24 -nolisten tcp 2>/dev/null)
xvfb=$!
trap 'kill "$xvfb" 2>/dev/null || true' EXIT
read -r number <&3
export DISPLAY=:$number
openbox >/dev/null 2>&1 &

cd "$build/run"
./quayside "$@" &
application=$!
for _ in $(seq 100); do
    window=$(xdotool search --onlyvisible --pid "$application" 2>/dev/null | head -n 1) || true
    [ -z "$window" ] || break
    kill -0 "$application" 2>/dev/null || break
    sleep 0.1
done
if [ -n "${window:-}" ]; then
    sleep 1 # the first frames
    import -window "$window" "$picture"
    echo "$picture"
    wmctrl -i -c "$(printf '0x%x' "$window")"
fi
wait "$application"
