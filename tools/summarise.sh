#!/usr/bin/env bash
# summarise.sh BUILD: adds up the results in BUILD/test-results of the test programs that
# BUILD/selected-tests.txt names and prints "N passed, N failed" as its last line. A program that left
# no result counts as one failure; a skipped test counts as neither.
set -euo pipefail
build=$1
passed=0
failed=0
while read -r name; do
    result=$build/test-results/$name.xml
    if [ ! -s "$result" ]; then
        echo "no result: $name"
        failed=$((failed + 1))
        continue
    fi
    head=$(grep -m1 '<testsuites ' "$result")
    number() { sed -n "s/.* $1=\"\([0-9]*\)\".*/\1/p" <<<"$head"; }
    bad=$(($(number failures) + $(number errors)))
    skipped=$(grep -c 'result="skipped"' "$result" || true)
    passed=$((passed + $(number tests) - $(number disabled) - skipped - bad))
    failed=$((failed + bad))
done <"$build/selected-tests.txt"
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
