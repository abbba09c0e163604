#!/usr/bin/env python3
"""catalogue.py [--check]: brings the Chinese catalogue up to date with the texts of the sources and
lists those that have no translation; ends with 1 where there is one. A translation whose text is gone
stays, and is listed, as long as some text has none and might want it; then it is dropped and shown a
last time. With --check nothing is written, and an entry that is left over is a fault too."""

import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from floorplan import product_folders

CATALOGUE = Path("resources/translator/kdlm_zh.ts")


def lupdate(catalogue, *options):
    """Lets Qt's tool compare a catalogue with the sources. Places are left out: they would change
    with every line that moves."""
    tool = shutil.which("lupdate") or "/usr/lib/qt5/bin/lupdate"
    command = [tool, "-silent", "-locations", "none", *options, "-I", ".", *product_folders()]
    subprocess.run([*command, "-ts", str(catalogue)], check=True)


def entries(catalogue, *types):
    """The texts whose translations have one of the types, each as a line of output."""
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            if translation.get("type") in types:
                text = "".join(translation.itertext()).strip()
                yield f"  {context.findtext('name')}: {message.findtext('source')}" + (
                    f"\n    {text}" if text else "")


def show(title, lines):
    if lines:
        print("\n".join([title, *lines]))


def update():
    lupdate(CATALOGUE)
    unfinished = list(entries(CATALOGUE, "unfinished"))
    left_over = list(entries(CATALOGUE, "vanished", "obsolete"))
    show("Without a finished translation:", unfinished)
    if unfinished:
        show("No longer in the sources; dropped when all texts are translated:", left_over)
        return 1
    if left_over:
        show("No longer in the sources; dropped:", left_over)
        lupdate(CATALOGUE, "-no-obsolete")
    print(f"{CATALOGUE}: all texts are translated")
    return 0


def check():
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder, CATALOGUE.name)
        shutil.copy(CATALOGUE, copy)
        lupdate(copy)
        wrong = list(entries(copy, "unfinished", "vanished", "obsolete"))
    show("Not translated or left over (see ./dev translate):", wrong)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(check() if sys.argv[1:] == ["--check"] else update())
