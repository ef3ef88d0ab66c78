#!/usr/bin/env python3
"""Checks that every class and message that the sources name exists on the phone, with these types.

Usage: interface.py [ROOT]: the repository to read, by default the one that holds this script."""
import sys
from pathlib import Path

from platform_table import ABSENT, ancestry, read_table, same_type, split_types
from sources import Reader

MINIMUM = (14, 5)


def too_new(since):
    return since[0].isdigit() and tuple(map(int, since.split("."))) > MINIMUM


def candidates(classes, found, use):
    """The table's methods of that name that the message can reach."""
    cls = use.cls
    while cls not in classes and cls in found.own_classes:
        cls = found.classes[cls]
    reach = ancestry(classes, cls) if cls else classes.values()
    # A class answers the root class's instance methods too.
    sides = "+-" if use.cls is None or use.side == "+" else "-"
    return [(cls, cls.methods[side, use.selector]) for cls in reach for side in sides
            if (side, use.selector) in cls.methods and (side == use.side or cls.name == "NSObject")]


def types_agree(use, types):
    if types == ABSENT or use.types is None:
        return True
    expected = split_types(types)
    return len(expected) == len(use.types) and all(
        mine is None or same_type(mine, theirs, use.hooked)
        for mine, theirs in zip(use.types, expected))


def spelt(types):
    return " ".join(t or "?" for t in types)


def check_use(classes, found, use):
    what = f"{use.place}: {use.side}[{use.cls or '?'} {use.selector}]"
    own = (use.side, use.selector) in found.own_methods
    if use.cls is not None and use.cls not in classes and use.cls not in found.own_classes:
        return []  # the class itself is reported
    if use.hooked and (use.types is None or None in use.types):
        return [f"{what}: the replacement's types cannot be read here"]
    reached = candidates(classes, found, use)
    if not reached:
        return [] if own else [f"{what}: no such method in the table"]
    if not any(types_agree(use, types) for _, (types, _) in reached) and not own:
        return [f"{what}: types {spelt(use.types)}, but the platform's are "
                f"{spelt(split_types(reached[0][1][0]))}"]
    return [f"{what}: only since iOS {since}" for _, (_, since) in reached[:1] if too_new(since)]


def check_class(classes, found, name, superclass):
    if name in found.own_classes:
        return []
    if name not in classes:
        return [f"class {name}: not in the table"]
    problems = []
    if superclass and superclass not in [cls.name for cls in ancestry(classes, name)]:
        problems.append(f"class {name}: does not inherit from {superclass} on the platform")
    if too_new(classes[name].since):
        problems.append(f"class {name}: only since iOS {classes[name].since}")
    return problems


def check_all(classes, found):
    if found.ambiguous:  # what handle is meant anywhere cannot be told then
        return [f"handle {name}: more than one has this name" for name in sorted(found.ambiguous)]
    return [*(problem for name, superclass in found.classes.items()
              for problem in check_class(classes, found, name, superclass)),
            *(problem for use in found.uses for problem in check_use(classes, found, use))]


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2])
    classes = read_table(root / "device/interface.txt")
    found = Reader(root, ["bindings", "library"]).read()
    problems = check_all(classes, found)
    for problem in problems:
        print(problem, file=sys.stderr)
    print(f"interface: {len(found.classes)} classes, {len(found.uses)} messages and hooks, "
          f"{len(problems)} problems")
    return 1 if problems or not found.uses else 0


if __name__ == "__main__":
    sys.exit(main())
