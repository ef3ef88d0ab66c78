#!/usr/bin/env python3
"""Refuses sources that have grown too long: file_lengths.py [FOLDER] (the project's folder)."""
import sys
from pathlib import Path

LIMIT = 500  # lines; a file that needs more has more than one idea
ROOMS = ("bindings", "library", "desktop", "device", "tests", "bench", "scripts")
ENDINGS = {".cpp", ".hpp", ".py", ".sh", ".js", ".css"}
# Longer with a reason: the look of one page stands in one style sheet.
EXCUSED = {"desktop/viewer/page/page.css"}


def sources(root):
    for room in ROOMS:
        for path in sorted(Path(root, room).rglob("*")):
            if path.suffix in ENDINGS and "node_modules" not in path.parts:
                yield path


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parents[2]
    found = 0
    long_files = []
    for path in sources(root):
        found += 1
        lines = len(path.read_text(encoding="utf-8").splitlines())
        if lines > LIMIT and str(path.relative_to(root)) not in EXCUSED:
            long_files.append(f"{path.relative_to(root)}: {lines} lines, more than {LIMIT}")
    print(*long_files, sep="\n", file=sys.stderr)
    if found == 0:
        sys.exit(f"no sources in {root}")
    sys.exit(1 if long_files else 0)


if __name__ == "__main__":
    main()
