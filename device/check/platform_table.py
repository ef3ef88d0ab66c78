"""Reads the table of the platform's classes and methods, and compares type encodings."""
import re
from dataclasses import dataclass, field

ABSENT = "absent"


@dataclass
class PlatformClass:
    name: str
    superclass: str
    since: str
    methods: dict[tuple[str, str], tuple[str, str]] = field(default_factory=dict)


def read_table(path):
    """Classes by name; their methods by side and selector, as types and "since"."""
    classes = {}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        words = line.split()
        if not words or words[0] == "#":
            continue
        if len(words) != 4:
            raise ValueError(f"{path}:{number}: four words expected: {line}")
        if words[1] == ":":
            current = classes[words[0]] = PlatformClass(words[0], words[2], words[3])
        else:
            current.methods[words[0], words[1]] = (words[2], words[3])
    return classes


def ancestry(classes, name):
    """The class and its superclasses, as far as the table knows them."""
    while name in classes:
        yield classes[name]
        name = classes[name].superclass


def split_types(encoding):
    """Result and arguments, without receiver and selector: "v@:@q" gives v, @, q."""
    types = re.findall(r"[rnNoORV]*\^*(?:\{(?:[^{}]|\{[^{}]*\})*\}|@\?|.)", encoding)
    return [types[0], *types[3:]]


def same_type(one, other, strict):
    """Whether two types mean the same; to a caller who is not strict, a pointer is a pointer."""
    def plain(code):
        code = code.lstrip("rnNoORV").replace("@?", "@")
        code = "^B" if code == "*" else code.replace("c", "B") if len(code) == 1 else code
        return "^" if code.startswith("^") and not strict else code
    return plain(one) == plain(other)
