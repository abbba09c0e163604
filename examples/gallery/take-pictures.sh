#!/usr/bin/env bash
# take-pictures.sh BUILD FOLDER: starts the gallery of a build on a virtual display of its own and
# saves gallery.png, with a page that arrives from the right and a glowing button, and
# gallery-back.png, with a page that arrives from the left and a disabled button that keeps its glow.
set -euo pipefail
# shellcheck source=tools/virtual-display.sh
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/virtual-display.sh"
build=$1
folder=$2

start_display 1280x800
trap end_display EXIT
"$build/examples/gallery/widget_gallery" &
gallery=$!
trap 'end "$gallery"; end_display' EXIT
window=$(timeout 30 xdotool search --sync --onlyvisible --pid "$gallery" | head -n 1)

# hover X Y: moves the mouse to a place in the window.
hover() { xdotool mousemove --window "$window" "$1" "$2"; }

# picture NAME KEY: in the middle of the slide that the key starts.
picture() {
    xdotool key "$2"
    sleep 1.4
    import -window "$window" "$folder/$1.png"
    sleep 4
}

xdotool key alt+u type 3600
hover 760 514 # "Open"
picture gallery alt+n
hover 955 514 # "Save"
sleep 0.5
xdotool key alt+e
sleep 0.5 # the check box takes its time
hover 960 660
picture gallery-back alt+r
