#!/usr/bin/env bash
# lint.sh BUILD: formatting, scripts, floors, sizes, version, binary interface, run paths, headers
# that compile alone, translations, the handbook, clang-tidy and clazy. BUILD holds compile_commands.json. The last
# line is "N passed, N failed", a check a pass.
set -uo pipefail
build=$1
passed=0
failed=0
jobs=$(nproc)

# check NAME COMMAND...: shows the command's output only when it fails.
check() {
    local name=$1 output
    shift
    if output=$("$@" 2>&1); then
        echo "ok: $name"
        passed=$((passed + 1))
    else
        printf '%s\nFAILED: %s\n' "$output" "$name"
        failed=$((failed + 1))
    fi
}

mapfile -t sources < <(git ls-files '*.cpp')
mapfile -t headers < <(git ls-files '*.h')
mapfile -t scripts < <(git ls-files '*.sh' dev .ci/run)
# Only what the build compiles has flags to be checked with.
compiled() {
    local source
    for source in "${sources[@]}"; do
        if grep -qF "\"file\": \"$PWD/$source\"" "$build/compile_commands.json"; then echo "$source"; fi
    done
}
mapfile -t compiled_sources < <(compiled)
# For the tests, their format and the compiler's warnings are enough.
mapfile -t product_sources < <(printf '%s\n' "${compiled_sources[@]}" | grep -v '^tests/')

tidy() {
    printf '%s\0' "${product_sources[@]}" | xargs -0 -n 2 -P "$jobs" clang-tidy -p "$build" --quiet
}

# clazy reports findings as warnings and succeeds nevertheless.
clazy() {
    local output
    output=$(printf '%s\0' "${product_sources[@]}" |
        xargs -0 -n 2 -P "$jobs" clazy-standalone -p "$build" -checks=level1 2>&1) ||
        { echo "$output" && return 1; }
    if grep -E '\[-Wclazy' <<<"$output"; then return 1; fi
    if grep -E ' error: ' <<<"$output"; then return 1; fi
}

# headers_alone: each header of the libraries compiles by itself.
headers_alone() {
    local flags
    flags=$(pkg-config --cflags Qt5Widgets)
    printf '%s\0' "${headers[@]}" | grep -zvE '^(tests|bench|examples|fuzz)/' |
        xargs -0 -n 1 -P "$jobs" sh -c \
            "exec g++ -std=c++17 -fPIC -fsyntax-only -Wall -Wextra -I. $flags -x c++ \"\$1\"" compile
}

# handbook: made only to see whether doxygen warns.
handbook() {
    local folder status=0
    folder=$(mktemp -d)
    tools/docs.sh "$folder" || status=1
    rm -rf "$folder"
    return "$status"
}

# sizes: the figures are shown in any case.
exec 3>&1
sizes() { tools/sizes.py >&3; }

check "clang-format" clang-format --dry-run -Werror "${sources[@]}" "${headers[@]}"
check "shellcheck" shellcheck "${scripts[@]}"
check "floors" tools/floors.py
check "sizes" sizes
check "version" tools/version.py
check "binary interface" tools/abi.sh
check "run paths" tools/runpaths.sh "$build"
check "headers compile alone" headers_alone
# Every text of the window has its Chinese translation, and none is left over.
check "translations" tools/catalogue.py --check
check "pages of operations" tools/operations.sh "$build" --check
check "handbook" handbook
check "clang-tidy" tidy
check "clazy" clazy
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
