#!/usr/bin/env python3
"""floors.py: proves from the includes that each floor of the product uses only what stands below it,
that no folders or files include each other in a circle, that a page uses no other page's folder, and
that the lower floors see as little of Qt as they are meant to. Prints each include that breaks a rule
and ends with 1 where there is one."""

import re
import subprocess
import sys
from functools import lru_cache
from pathlib import Path

from floorplan import floors, product_folders, sources

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
WITHOUT_WIDGETS = ("regfile/", "inspection/")
WITHOUT_QT = ("crypto/",)


@lru_cache(maxsize=None)
def includes(path):
    """The project's headers that a file includes, and the system's."""
    found = INCLUDE.findall(Path(path).read_text())
    return ([name for mark, name in found if mark == '"'], [name for mark, name in found if mark == "<"])


@lru_cache(maxsize=None)
def height(path):
    """The number of the floor that a path stands on, 0 for the lowest; None outside the product."""
    matches = [(len(start), number) for number, (_, starts) in enumerate(floors())
               for start in starts if path.startswith(start)]
    return max(matches)[1] if matches else None


def wrong_floor(path, name):
    """Why a file may not include a header of the project; None when it may."""
    names = [floor for floor, _ in floors()]
    if not Path(name).is_file():
        return "is not the path of a header from the root of the sources"
    if height(name) is None:
        return "is no part of the product"
    if height(name) > height(path):
        return f"is above: {names[height(path)]} stands below {names[height(name)]}"
    pages = [re.match(r"pages/\w+/", each) for each in (path, name)]
    if all(pages) and pages[0][0] != pages[1][0]:
        return "belongs to another page"
    return None


def folder(path):
    """The folder of a file directly under the root; the program's main file is one of its own."""
    return path if path == "app/main.cpp" else path.split("/")[0]


def circles(graph):
    """The circles of a graph, each as the nodes along it."""
    found, done = [], set()

    def visit(node, way):
        if node in way:
            found.append(way[way.index(node):] + [node])
        elif node not in done:
            for following in sorted(graph.get(node, ())):
                visit(following, way + [node])
            done.add(node)

    for start in sorted(graph):
        visit(start, [])
    return found


@lru_cache(maxsize=None)
def widget_headers():
    """The names of the headers of Qt's widgets module."""
    command = ["pkg-config", "--variable=includedir", "Qt5Widgets"]
    base = subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
    return frozenset(header.name for header in Path(base, "QtWidgets").iterdir())


def is_widget_header(name):
    return name.startswith("QtWidgets/") or name in widget_headers()


def is_qt_header(name):
    return name[0] in "Qq"


def ways_to(is_banned, path, way=()):
    """The chains of includes from a file to a system header that is banned there."""
    if path in way or not Path(path).is_file():
        return
    own, system = includes(path)
    for name in filter(is_banned, system):
        yield *way, path, f"<{name}>"
    for name in own:
        yield from ways_to(is_banned, name, (*way, path))


def sights(is_banned, starts, path):
    """How a file sees a banned header: by itself, or through the headers of other floors. What it
    sees through its own floor is told there."""
    for *way, name in ways_to(is_banned, path):
        if len(way) == 1 or not way[1].startswith(starts):
            yield f"not to be seen from {path.split('/')[0]}/: " + " -> ".join([*way, name])


def faults():
    """All that breaks a rule, a line each."""
    files = sources(*product_folders())
    for path in files:
        for name in includes(path)[0]:
            reason = wrong_floor(path, name)
            if reason:
                yield f"{path}: {name} {reason}"
    by_file = {path: includes(path)[0] for path in files}
    by_folder = {}
    for path, names in by_file.items():
        by_folder.setdefault(folder(path), set()).update(
            folder(name) for name in names if folder(name) != folder(path))
    for circle in circles(by_folder) + circles(by_file):
        yield "circle: " + " -> ".join(circle)
    for is_banned, starts in ((is_widget_header, WITHOUT_WIDGETS), (is_qt_header, WITHOUT_QT)):
        for path in files:
            if path.startswith(starts):
                yield from sights(is_banned, starts, path)


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found) or "The floors stand.")
    sys.exit(1 if found else 0)
