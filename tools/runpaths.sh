#!/usr/bin/env bash
# runpaths.sh FOLDER: fails on programs and libraries in the folder that look for libraries by an
# empty or a relative path: the dynamic loader would take them out of the working directory.
set -uo pipefail
folder=$1
status=0

# run_paths FILE: the entries of its RPATH and RUNPATH, one a line.
run_paths() {
    readelf -d "$1" 2>/dev/null | sed -n 's/.*(\(RPATH\|RUNPATH\)).*\[\(.*\)\]$/\2/p' | tr ':' '\n'
}

# shellcheck disable=SC2016 # the loader's own names
while IFS= read -r file; do
    while IFS= read -r path; do
        case $path in
        /* | '$ORIGIN' | '$ORIGIN/'* | '${ORIGIN}' | '${ORIGIN}/'*) ;;
        *)
            echo "$file: looks for libraries in \"$path\""
            status=1
            ;;
        esac
    done < <(run_paths "$file")
done < <(find "$folder" -name CMakeFiles -prune -o -type f \( -perm -u+x -o -name '*.so*' \) -print)
exit "$status"
