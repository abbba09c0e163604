#!/usr/bin/env python3
"""version.py: prints the version, which stands in CMakeLists.txt, and ends with 1 where the change
log, the packages' change log or the description for software centres names another one as the newest,
or another day for it."""

import re
import sys
from datetime import datetime
from pathlib import Path


def found(path, pattern):
    """What the groups of the pattern find first in a file."""
    match = re.search(pattern, Path(path).read_text(), re.MULTILINE)
    return match.groups() if match else ("nothing", "nothing")


def newest():
    """Each file that names a version, with the newest version in it and its day."""
    yield "CHANGELOG.md", *found("CHANGELOG.md", r"^## (\S+) - (\S+)$")
    yield "packaging/quayside.metainfo.xml", *found(
        "packaging/quayside.metainfo.xml", r'<release version="(\S+)" date="(\S+)"')
    version, = found("debian/changelog", r"^quayside \((\S+)\)")[:1]
    day, = found("debian/changelog", r"^ -- .*>  \w+, (\d+ \w+ \d+)")[:1]
    yield "debian/changelog", version, str(datetime.strptime(day, "%d %b %Y").date())


def main():
    version = found("CMakeLists.txt", r"^project\(quayside VERSION (\S+)")[0]
    print(version)
    rows = list(newest())
    wrong = [row for row in rows if row[1:] != (version, rows[0][2])]
    for path, other, day in wrong:
        print(f"{path}: the newest version is {other} of {day}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
