#!/usr/bin/env bash
# run-without-display.sh BUILD [ARGS]: starts the application on a virtual display of its own, saves
# BUILD/window.png, closes the window as a user would and ends with the application's status. Waits
# for nothing without a limit.
set -euo pipefail
# shellcheck source=tools/virtual-display.sh
. "$(dirname "${BASH_SOURCE[0]}")/virtual-display.sh"
build=$1
shift
picture=$build/window.png
rm -f "$picture"

start_display 1280x800
trap end_display EXIT
cd "$build/run"
./quayside "$@" 3<&- &
application=$!

# window_or_end: true when the window is there, or never will be.
window_or_end() {
    window=$(xdotool search --onlyvisible --pid "$application" 2>/dev/null | head -n 1) || true
    [ -n "$window" ] || has_ended "$application"
}

if ! within 30 window_or_end; then
    echo "No window appears" >&2
elif [ -n "$window" ]; then
    sleep 1 # the first frames
    timeout 20 import -window "$window" "$picture"
    echo "$picture"
    wmctrl -i -c "$(printf '0x%x' "$window")" || true
    within 10 has_ended "$application" || echo "The window does not close" >&2
fi
end "$application"
wait "$application"
