#!/usr/bin/env python3
"""sizes.py: checks the sizes of functions, files and folders. Prints the figures, and on the error
output what is too large; ends with 1 where something is. A lambda counts with the function around
it."""

import json
import subprocess
import sys
from collections import Counter
from pathlib import Path

from floorplan import sources

LONGEST_FUNCTION = 40
FUNCTION_PERCENTILE_95 = 20
FUNCTION_MEDIAN = 8
LONGEST_FILE = 500
LARGEST_SHARE = 30  # of all lines of code, in one folder directly under the root
NO_CODE = ("tests", "docs", "resources")


def functions(files):
    """The functions that are defined in the files: (lines, name, place), shortest first."""
    command = ["ctags", "--languages=C++", "--kinds-C++=f", "--fields=+ne", "--output-format=json",
               "-f", "-", "-L", "-"]
    output = subprocess.run(command, input="\n".join(files), check=True, capture_output=True,
                            text=True).stdout
    tags = [json.loads(line) for line in output.splitlines()]
    return sorted((tag["end"] - tag["line"] + 1, tag["name"], f"{tag['path']}:{tag['line']}")
                  for tag in tags
                  if tag.get("kind") == "function" and not tag["name"].startswith("__anon"))


def lines_of(path):
    return len(Path(path).read_bytes().splitlines())


def function_faults(found):
    lengths = [length for length, _, _ in found]
    median, percentile = (lengths[len(lengths) * part // 100] for part in (50, 95))
    print(f"{len(lengths)} functions: median {median} lines, 95th percentile {percentile}, "
          f"longest {lengths[-1]} ({found[-1][1]}, {found[-1][2]})")
    if median > FUNCTION_MEDIAN:
        yield f"The median function has {median} lines, above {FUNCTION_MEDIAN}"
    if percentile > FUNCTION_PERCENTILE_95:
        yield f"The 95th percentile of functions has {percentile} lines, above {FUNCTION_PERCENTILE_95}"
    for length, name, place in found:
        if length > LONGEST_FUNCTION:
            yield f"{place}: {name} has {length} lines, above {LONGEST_FUNCTION}"


def file_faults(lines):
    longest = max(lines, key=lines.get)
    print(f"{len(lines)} files: longest {lines[longest]} lines ({longest})")
    for path, count in lines.items():
        if count > LONGEST_FILE:
            yield f"{path} has {count} lines, above {LONGEST_FILE}"


def folder_faults(lines):
    folders = Counter()
    for path, count in lines.items():
        folders[path.split("/")[0]] += count
    total = sum(folders.values())
    shares = {folder: 100 * count / total for folder, count in folders.most_common()}
    print(f"{total} lines of code: "
          + ", ".join(f"{folder} {folders[folder]} ({share:.1f} %)" for folder, share in shares.items()))
    for folder, share in shares.items():
        if share > LARGEST_SHARE:
            yield f"{folder}/ holds {share:.1f} % of the code, above {LARGEST_SHARE} %"


if __name__ == "__main__":
    lines = {path: lines_of(path) for path in sources()}
    code = {path: count for path, count in lines.items() if path.split("/")[0] not in NO_CODE}
    faults = [*function_faults(functions(code)), *file_faults(lines), *folder_faults(code)]
    for fault in faults:
        print(fault, file=sys.stderr)
    sys.exit(1 if faults else 0)
