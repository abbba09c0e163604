#!/usr/bin/env bash
# run.sh --names [NAME...]: prints the names of the benchmark programs, or checks the given ones and
# prints them; where one does not exist, tells which do and ends with 2.
# run.sh BUILD NAME...: runs benchmark programs of a build.
set -euo pipefail

# checked NAME...: the names if they are benchmarks; all benchmarks when none is given.
checked() {
    local all name
    all=$(sed -n 's/^add_executable(\([a-z]*_bench\).*/\1/p' "$(dirname "${BASH_SOURCE[0]}")/CMakeLists.txt")
    for name; do
        grep -qxF -e "$name" <<<"$all" && continue
        printf "No benchmark '%s'. There are:\n%s\n" "$name" "$all" >&2
        return 2
    done
    if [ "$#" -gt 0 ]; then printf '%s\n' "$@"; else printf '%s\n' "$all"; fi
}

if [ "$1" = --names ]; then
    shift
    checked "$@"
    exit
fi
build=$1
shift
for name; do "$build/bench/$name"; done
