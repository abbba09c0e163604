#!/usr/bin/env python3
"""links.py FOLDER...: prints the links and pictures of the HTML pages in the folders that lead nowhere."""

import pathlib
import re
import sys
import urllib.parse

REFERENCE = re.compile(r'(?:href|src)="([^"#]+)[#"]')


def broken(folder):
    for page in sorted(folder.glob("*.html")):
        for target in REFERENCE.findall(page.read_text(encoding="utf-8")):
            is_elsewhere = target.startswith(("http:", "https:", "mailto:"))
            if not is_elsewhere and not (folder / urllib.parse.unquote(target)).exists():
                yield f"{page}: {target}"


def main():
    found = [line for name in sys.argv[1:] for line in broken(pathlib.Path(name))]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


sys.exit(main())
