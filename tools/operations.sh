#!/usr/bin/env bash
# operations.sh BUILD [--check]: makes the handbook's pages of operations from the table of operations,
# by the program that BUILD holds. With --check, only compares them, and prints what differs.
set -euo pipefail
build=$1
status=0
for row in en:docs/handbook zh_CN:docs/handbook/zh_CN; do
    page=${row#*:}/operations.md
    made=$("$build/tools/operations/operations_page" "${row%%:*}" tools/operations/differences.tsv)
    if [ "${2:-}" = --check ]; then
        diff "$page" - <<<"$made" || status=1
    else
        printf '%s\n' "$made" >"$page"
    fi
done
exit "$status"
