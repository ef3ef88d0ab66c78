#!/usr/bin/env python3
"""Checks that the loader knows each symbol that the library may import, and no other.

Usage: emulation.py [ROOT]: the repository to read, by default the one that holds this script.

The stubs have the symbols; a source of device/emulation that names one binds it."""
import re
import sys
from pathlib import Path

from stubs import read_stubs

# The dynamic linker's own, which no stub has to offer.
LINKERS = {"dyld_stub_binder"}
NAMED = re.compile(r'"(_\w+|dyld_\w+)"')


def named(root):
    """What the tables of imports name."""
    sources = sorted(Path(root, "device/emulation").glob("*.cpp"))
    return {name for source in sources if "Translations() {" in (text := source.read_text(encoding="utf-8"))
            or "sameOnBothSides() {" in text for name in NAMED.findall(text)}


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2])
    known = named(root)
    wanted = set(read_stubs(root / "device/stubs")) | LINKERS
    for name in sorted(wanted - known):
        print(f"{name}: the loader does not bind it", file=sys.stderr)
    for name in sorted(known - wanted):
        print(f"{name}: the loader binds it, and no stub has it", file=sys.stderr)
    print(f"emulation: {len(known & wanted)} imports")
    return 1 if known != wanted or not known else 0


if __name__ == "__main__":
    sys.exit(main())
