#!/usr/bin/env bash
# take-pictures.sh BUILD FOLDER: saves the pictures of all pages, English light and Chinese dark.
set -euo pipefail
build=$1
folder=$2

cd "$build/run" # where the application finds Qt's own catalogues
for look in "en light" "zh dark"; do
    read -r language palette <<<"$look"
    "$build/tools/pictures/page_pictures" "$folder" "$language" "$palette"
    # The few colours of a window fit a palette, which makes the files a third as large.
    mogrify -strip +dither -colors 256 -define png:compression-level=9 \
        "$folder"/*-"$language-$palette".png
done
ls "$folder"/*-{en-light,zh-dark}.png
