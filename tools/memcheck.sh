#!/usr/bin/env bash
# memcheck.sh BUILD [PROGRAM...]: runs the suites of platform, crypto, widgets and regfile, or some of
# them, under valgrind. The last line is "N passed, N failed", a program a pass.
set -uo pipefail
build=$1
shift
programs=(
    crypto/crypto_test
    regfile/regfile_test
    widgets/widgets_test
    platform/services_test
    platform/register_manager_test
    platform/profile_manager_test
    platform/directory_manager_test
    platform/font_manager_test
    platform/displays_test)
# Texts of gigabytes take hours; what is measured or limited is valgrind's own memory and time.
left_out='-*LargeText*:AesLongCount*:*/AesLongCount*:ProfileMemory.*:ProfileEndlessFile.*:*StaysLinear*'
passed=0
failed=0

# run PROGRAM: Qt keeps what it allocates, so that only wrong uses of memory count. Some tests have an
# operator new of their own. Expressions that are compiled into machine code read beyond their texts.
run() {
    QT_QPA_PLATFORM=offscreen QT_ENABLE_REGEXP_JIT=0 valgrind --quiet --error-exitcode=99 \
        --soname-synonyms=somalloc=nouserintercepts --leak-check=no --num-callers=30 \
        --suppressions=tests/support/memcheck.supp \
        "$build/tests/$1" --gtest_filter="$left_out" --gtest_brief=1
}

# is_chosen PROGRAM NAME...: whether one of the names is the program's, or there are none.
is_chosen() {
    local program=$1 name
    shift
    [ "$#" -gt 0 ] || return 0
    for name; do [ "$name" != "${program##*/}" ] || return 0; done
    return 1
}

for program in "${programs[@]}"; do
    is_chosen "$program" "$@" || continue
    if run "$program"; then
        echo "ok: $program"
        passed=$((passed + 1))
    else
        echo "FAILED: $program"
        failed=$((failed + 1))
    fi
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
