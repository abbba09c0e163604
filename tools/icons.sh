#!/usr/bin/env bash
# icons.sh: makes the pictures of the icon, in the sizes that desktops ask for, from the one drawing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../packaging/icons"
for size in 16 22 24 32 48 64 128 256 512; do
    rsvg-convert --width "$size" --height "$size" --output "quayside-$size.png" quayside.svg
done
