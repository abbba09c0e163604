#!/usr/bin/env bash
# run.sh --names [NAME]: prints the names of the fuzzers, or checks the given one and prints it; where
# it does not exist, tells which do and ends with 2.
# run.sh BUILD SECONDS NAME...: runs fuzzers of a build, each for so long, from the corpus that is kept
# with the sources. What they find lands in BUILD/findings, what else they learn in BUILD/corpus. The
# last line is "N passed, N failed".
set -uo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# checked [NAME]: the name if it is a fuzzer; all fuzzers when none is given.
checked() {
    local all
    all=$(sed -n 's/^quayside_fuzzer(\([a-z0-9_]*\)_fuzz.*/\1/p' "$here/CMakeLists.txt")
    if [ "$#" -eq 0 ]; then
        echo "$all"
    elif grep -qxF -e "$1" <<<"$all"; then
        echo "$1"
    else
        printf "No fuzzer '%s'. There are:\n%s\n" "$1" "$all" >&2
        return 2
    fi
}

if [ "$1" = --names ]; then
    shift
    checked "$@"
    exit
fi
build=$(realpath "$1")
seconds=$2
shift 2

# fuzz NAME: a fuzzer that is killed has found something too, as have leaks.
fuzz() {
    local name=$1 learned=$build/corpus/$1 kept=$here/corpus/$1 log=$build/findings/$1.log
    local options=(-max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1
        -artifact_prefix="$build/findings/$name-")
    [ ! -f "$here/dictionaries/$name.dict" ] || options+=(-dict="$here/dictionaries/$name.dict")
    mkdir -p "$learned" "$kept"
    if "$build/fuzz/${name}_fuzz" "${options[@]}" "$learned" "$kept" >"$log" 2>&1; then
        echo "ok: $name, $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs"
    else
        tail -n 40 "$log"
        echo "FAILED: $name; the input lies in $build/findings"
        return 1
    fi
}

export QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$here/../tests/support/leaks.supp:print_suppressions=0
# Each input has a file of its own, which need not reach a disk.
if [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi
export build seconds here
export -f fuzz
mkdir -p "$build/findings"
# shellcheck disable=SC2016 # the inner shell expands it
results=$(printf '%s\n' "$@" | xargs -P "$(nproc)" -I '{}' bash -c 'fuzz "$1"' fuzz '{}')
echo "$results"
failed=$(grep -c '^FAILED' <<<"$results")
echo "$(grep -c '^ok' <<<"$results") passed, $failed failed"
[ "$failed" -eq 0 ]
