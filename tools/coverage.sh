#!/usr/bin/env bash
# coverage.sh BUILD: what the tests of an instrumented build have run through, folder by folder; the
# pages that show each line lie in BUILD/report. Ends with a status other than 0 where less than 95 % of
# the lines or 85 % of the branches were taken. Branches that only an exception takes do not count: each
# call has one.
set -euo pipefail
build=$1
folders='(app|crypto|ctl|host|inspection|pages|platform|regfile|trace|widgets|window)'
common=(--root . --object-directory "$build" --filter "$folders/" --exclude-throw-branches
    --exclude-unreachable-branches -j "$(nproc)")
mkdir -p "$build/report"
gcovr "${common[@]}" --json "$build/report/coverage.json" "$build"
gcovr --root . --exclude-throw-branches --exclude-unreachable-branches \
    --add-tracefile "$build/report/coverage.json" --html-details "$build/report/index.html" \
    --csv "$build/report/coverage.csv" --fail-under-line 95 --fail-under-branch 85 --print-summary
