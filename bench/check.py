#!/usr/bin/env python3
"""check.py LIMITS [PROGRAM...] < OUTPUT: the ratios that benchmark programs printed beside their limits.

The output of each program follows a line "== PROGRAM". A row that says its limit itself ("at most",
"at least", "limit=") is measured by that. LIMITS has a line for each other one: program, row, "<=" or
">=", and the limit, with tabs between them. Ends with 1 where a limit is missed, where a row has none,
and where a program that is named printed nothing for a line of LIMITS.
"""

import re
import sys

# What a line has to look like to be a row; the first group is its name, the second one its ratio.
# The libraries print 0.000012 as "12u".
ROWS = [
    re.compile(r"^(\S+)\s.*\bratio=([\d.]+(?:e[-+]\d+)?[num]?k?M?)(?=\s|$)"),
    re.compile(r"^(.+?)\s+[\d.]+ us +peer +[\d.]+ us +ratio ([\d.]+)"),
    re.compile(r"^(.+?)\s+[\d.]+ MB/s\s+[\d.]+ MB/s\s+([\d.]+)"),
    re.compile(r"^(.+?): .*\bratio ([\d.]+)"),
    re.compile(r"^(.+?): .*\bdifference ([\d.]+) ms"),
    re.compile(r"^(.+?): ([\d.]+) ms"),
    re.compile(r"^(.+?)\s+([\d.]+) ms without a turn"),
]
LIMITS = [
    ("<=", re.compile(r"\(at most ([\d.]+)\)")),
    (">=", re.compile(r"\(at least ([\d.]+)\)")),
    ("<=", re.compile(r"\blimit=([\d.]+[num]?k?M?)(?=\s|$)")),
]
FACTORS = {"n": 1e-9, "u": 1e-6, "m": 1e-3, "k": 1e3, "M": 1e6}


def number(text):
    factor = FACTORS.get(text[-1])
    return float(text[:-1]) * factor if factor else float(text)


def row(line):
    for pattern in ROWS:
        found = pattern.match(line)
        if found:
            return found[1].strip(), number(found[2])
    return None


def own_limit(line):
    for comparison, pattern in LIMITS:
        found = pattern.search(line)
        if found:
            return comparison, number(found[1])
    return None


def measured(lines, limits):
    """The last ratio of each (program, row), in the order in which they were printed. What they say of
    their limits is added to `limits`."""
    program, ratios = "", {}
    for line in lines:
        if line.startswith("== "):
            program = line[3:].strip()
            continue
        found = row(line.rstrip("\n"))
        if not found:
            continue
        ratios[program, found[0]] = found[1]
        limit = own_limit(line)
        if limit:
            limits[program, found[0]] = limit
    return ratios


def read_limits(path):
    limits = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                program, name, comparison, limit = line.rstrip("\n").split("\t")
                limits[program, name] = (comparison, float(limit))
    return limits


def verdict(ratio, limit):
    if limit is None:
        return "NO LIMIT"
    if ratio is None:
        return "NOT MEASURED"
    comparison, bound = limit
    is_kept = ratio <= bound if comparison == "<=" else ratio >= bound
    return "" if is_kept else "MISSED"


def processor():
    """The model's name; on ARM the numbers that stand for it."""
    with open("/proc/cpuinfo", encoding="utf-8", errors="replace") as file:
        facts = dict(re.findall(r"^([^\t:]+?)\s*: *(.*)$", file.read(), re.MULTILINE))
    parts = [facts[name] for name in ("CPU implementer", "CPU part") if name in facts]
    return facts.get("model name") or "ARM " + " ".join(parts)


def main():
    limits = read_limits(sys.argv[1])
    ratios = measured(sys.stdin, limits)
    programs = {program for program, _ in ratios} | set(sys.argv[2:])
    rows = list(ratios) + [key for key in limits if key[0] in programs and key not in ratios]
    print(f"\nProcessor: {processor()}")
    print(f"{'':<76} {'ratio':>9}    {'limit':>9}")
    failures = 0
    for key in rows:
        ratio, limit = ratios.get(key), limits.get(key)
        shown = "-" if ratio is None else f"{ratio:.4g}"
        bound = f"{limit[0]} {limit[1]:>9g}" if limit else ""
        failure = verdict(ratio, limit)
        failures += bool(failure)
        print(f"{key[0] + ': ' + key[1]:<76} {shown:>9} {bound:>12}  {failure}".rstrip())
    print(f"{len(rows)} rows, {failures} not within their limits")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
