"""What tools/floors.txt says, and the sources that stand on the floors. All paths start at the root
of the sources, which is the working directory."""

import subprocess
from pathlib import Path


def floors():
    """The floors, lowest first: pairs of a name and the beginnings of the paths that stand there."""
    lines = Path("tools/floors.txt").read_text().splitlines()
    rows = [line.split() for line in lines if line and not line.startswith("#")]
    return [(row[0], row[1:]) for row in rows]


def product_folders():
    """The folders of the product that exist, in the order of their names."""
    paths = [path for _, starts in floors() for path in starts]
    folders = {path.split("/")[0] for path in paths}
    return [folder for folder in sorted(folders) if Path(folder).is_dir()]


def sources(*folders):
    """The tracked and the new C++ files of the folders; of all folders when none is given."""
    command = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "--", *folders]
    listed = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split("\0")
    return [path for path in listed if path.endswith((".cpp", ".h")) and Path(path).exists()]
