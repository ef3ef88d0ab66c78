#!/usr/bin/env python3
"""Checks that each room includes only the rooms below it: those of the library, of the desktop, and the
three houses that they stand in.

Usage: rooms.py [ROOT]: the repository to read, by default the one that holds this script.

Each table names every room of a house, from the bottom up, with the rooms that it may include. None may
name a room further down the table, so that there is no circle; a room may be named before it is there."""
import re
import sys
from pathlib import Path

HOUSES = {"bindings": ["bindings"], "library": ["bindings", "library"], "desktop": ["bindings", "desktop"]}

BASE = ["common", "paths", "preferences"]
LIBRARY = {
    "common": [],
    "paths": ["common"],
    "preferences": ["common", "paths"],
    "blocking": BASE,
    "scratchpad": BASE,
    "labels": BASE,
    "clipboard": BASE,
    "utilities": BASE,
    "analysis": BASE,
    "files": [*BASE, "analysis"],
    "crashlogs": [*BASE, "analysis", "files"],
    "toolbox": [*BASE, "labels", "clipboard", "utilities", "analysis", "crashlogs"],
    "editing": [*BASE, "labels", "analysis", "toolbox"],
}
LIBRARY["startup"] = list(LIBRARY)

PLAIN = ["runtime", "deviceroot", "drawing"]  # no frameworks: plain C++, or the runtime's own
DESKTOP = {
    "runtime": [],
    "deviceroot": [],
    "drawing": [],
    "services": [],
    "network": ["services"],
    "foundation": ["runtime", "network"],
    "coregraphics": ["drawing"],
    "audiotoolbox": ["runtime"],
    "commoncrypto": [],
    "darwin": [],
    "quartzcore": [*PLAIN, "coregraphics"],
    "uikit": [*PLAIN, "coregraphics", "quartzcore", "foundation"],
    "avfaudio": [*PLAIN, "foundation"],
    "speech": ["runtime", "foundation", "avfaudio", "uikit"],
    "replaykit": [*PLAIN, "coregraphics", "foundation", "uikit"],
    "webkit": [*PLAIN, "coregraphics", "uikit"],
    "safariservices": [*PLAIN, "uikit"],
    "messageui": [*PLAIN, "foundation", "uikit"],
    "platform": ["foundation", "uikit", "avfaudio", "speech", "replaykit", "webkit", "safariservices", "messageui"],
}
DESKTOP["host"] = list(DESKTOP)
DESKTOP["viewer"] = [*DESKTOP]
DESKTOP["program"] = [*DESKTOP]
# Here a CGColor is a UIColor, and only UIKit knows what a colour is.
EXCUSED = {("desktop/quartzcore/layer.cpp", "uikit")}


def circles(table):
    order = list(table)
    for room, below in table.items():
        for other in below:
            if order.index(other) >= order.index(room):
                yield f"the table lets {room} include {other}, which is not below it"


def included(path, house):
    """The rooms of a house that a file includes from."""
    text = path.read_text(encoding="utf-8")
    return re.findall(rf'^#include "{house}/(\w+)/', text, re.M)


def between_houses(root):
    for house, allowed in HOUSES.items():
        for path in sorted((root / house).rglob("*.[ch]pp")):
            for other in {"library", "desktop", "tests", "bench", "device"} - set(allowed):
                if included(path, other):
                    yield f"{path.relative_to(root)}: {house} may not include {other}"


def between_rooms(root, house, table):
    yield from circles(table)
    for path in sorted((root / house).rglob("*.[ch]pp")):
        file = path.relative_to(root)
        room = file.parts[1]
        if len(file.parts) == 2:
            continue  # a word that all rooms share
        if room not in table:
            yield f"{file}: the table has no room {room}"
            continue
        for other in included(path, house):
            if other != room and other not in table[room] and (str(file), other) not in EXCUSED:
                yield f"{file}: {room} may not include {other}"


def problems(root):
    yield from between_houses(root)
    yield from between_rooms(root, "library", LIBRARY)
    yield from between_rooms(root, "desktop", DESKTOP)


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2]).resolve()
    found = list(problems(root))
    for problem in found:
        print(problem, file=sys.stderr)
    rooms = [path.name for path in (root / "library").iterdir() if path.is_dir()]
    print(f"rooms: {len(rooms)}, {len(found)} problems")
    return 1 if found or not rooms else 0


if __name__ == "__main__":
    sys.exit(main())
