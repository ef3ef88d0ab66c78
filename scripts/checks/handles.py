#!/usr/bin/env python3
"""Checks that each class has one handle, and each class of the platform has it where it belongs.

Usage: handles.py [ROOT]: the repository to read, by default the one that holds this script.

The handle of a class stands in bindings/, in a file of the class's name without its prefix, and has
that name: UITextView is TextView in text_view.hpp. A mutable class stands with the immutable one."""
import re
import sys
from pathlib import Path

FOLDERS = ["bindings", "library", "desktop", "tests", "bench"]
PREFIX = re.compile(r"^_?(AV|CA|MF|NS|PS|RP|SF|UI|WK)(?=[A-Z])")
HANDLE = re.compile(r'struct (\w+)\s*: objc::Kind<\s*\w+,\s*"([^"]+)"')
# What the frameworks keep to themselves: these handles stand beside the desktop's own make of the class.
INTERNAL = {
    "NSConcreteAttributedString", "NSConcreteMutableAttributedString",
    "UICalloutBar", "UIDimmingView", "UIDropShadowView", "UIKeyboardView", "UILayoutContainerView",
    "UIPickerColumnView",
    "UIScrollViewPanGestureRecognizer", "UITextEffectsWindow", "UITextFieldClearButton",
    "UITextSelectionView", "UITransitionView", "_UITextEdit", "_UIAlertControllerActionView",
    "_UIAlertControllerView", "_UIContextMenuContainerView", "_UIPopoverView", "_UIViewControllerTransitionCoordinator",
}


def platform_classes(root):
    """The classes that the platform and its applications bring, as far as the table knows them."""
    table = (root / "device/interface.txt").read_text(encoding="utf-8")
    return set(re.findall(r"^(\S+) : ", table, re.M))


def handles(root):
    """Where each class's handles are: class -> [(file, the handle's name)]."""
    found = {}
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*.[ch]pp")):
            text = re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))
            for name, cls in HANDLE.findall(text):
                found.setdefault(cls, []).append((path.relative_to(root), name))
    return found


def misplaced(cls, path, name):
    """What is wrong with a handle in bindings/; empty when nothing is."""
    plain = PREFIX.sub("", cls)
    if name.lower() != plain.lower():
        return f"{path}: {cls}'s handle is called {name}"
    file = plain.removeprefix("Mutable").lower() + path.suffix
    return "" if path.name.replace("_", "") == file else f"{path}: {cls} has no file of its own"


def problems(root):
    known = platform_classes(root)
    for cls, places in handles(root).items():
        files = ", ".join(str(path) for path, _ in places)
        if len(places) > 1:
            yield f"{cls} has {len(places)} handles: {files}"
        for path, name in places:
            if path.parts[0] == "bindings":
                yield misplaced(cls, path, name)
            elif (cls in known or PREFIX.match(cls)) and cls not in INTERNAL:
                yield f"{path}: the handle of {cls} belongs in bindings/"


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2]).resolve()
    found = [problem for problem in problems(root) if problem]
    for problem in found:
        print(problem, file=sys.stderr)
    count = len(handles(root))
    print(f"handles: {count} classes, {len(found)} problems")
    return 1 if found or not count else 0


if __name__ == "__main__":
    sys.exit(main())
