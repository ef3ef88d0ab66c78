"""Reads the C++ sources for the classes and messages of the platform that they name."""
import re
from dataclasses import dataclass, field
from pathlib import Path


@dataclass(frozen=True)
class Use:
    """A message that is sent or hooked; `cls` is None where the receiver may be anything."""
    place: str
    cls: str | None
    side: str  # "-" or "+"
    selector: str
    types: tuple[str | None, ...] | None = None  # result and arguments; None: not told
    hooked: bool = False


@dataclass
class Sources:
    classes: dict[str, str] = field(default_factory=dict)  # class -> superclass
    own_classes: set[str] = field(default_factory=set)
    own_methods: set[tuple[str, str]] = field(default_factory=set)  # side, selector
    uses: list[Use] = field(default_factory=list)
    ambiguous: set[str] = field(default_factory=set)  # names of more than one handle


def balanced(text, start, brackets):
    """The text inside the bracket pair that opens at `start`, and the position behind it."""
    depth = 0
    for at in range(start, len(text)):
        if text[at] == brackets[0]:
            depth += 1
        elif text[at] == brackets[1]:
            depth -= 1
            if depth == 0:
                return text[start + 1:at], at + 1
    return text[start + 1:], len(text)


def split(text):
    """The parts between the commas that stand in no brackets."""
    parts, depth, start = [], 0, 0
    for at, character in enumerate(text):
        depth += (character in "<({") - (character in ">)}")
        if character == "," and depth == 0:
            parts.append(text[start:at].strip())
            start = at + 1
    parts.append(text[start:].strip())
    return [part for part in parts if part]


def place(file, text, match):
    return f"{file}:{text.count(chr(10), 0, match.start()) + 1}"


class Reader:
    def __init__(self, root, folders):
        paths = sorted(p for f in folders for p in Path(root, f).rglob("*.[ch]pp"))
        self.files = {str(p.relative_to(root)):
                      re.sub(r"//[^\n]*", "", p.read_text(encoding="utf-8")) for p in paths}
        self.encodings = {"Object": "@", "id": "@"}
        self.kinds = {}
        self.found = Sources()

    def read(self):
        for text in self.files.values():
            self.read_types(text)
        for name, text in self.files.items():
            self.read_own(text)
            self.read_messages(name, text)
            self.read_hooks(name, text)
        return self.found

    def read_types(self, text):
        for kind, cls in re.findall(r'struct (\w+)\s+: objc::Kind<\s*\w+,\s*"([^"]+)"', text):
            if self.kinds.setdefault(kind, cls) != cls:
                self.found.ambiguous.add(kind)
            self.encodings[kind] = "@"
        for name, code in re.findall(r'WENTRA_ENCODES\(([^,]+), "([^"]+)"\)', text):
            self.encodings[name] = code
        for name, code in re.findall(
                r'struct (?:objc::)?Encoding<([\w:]+)> {\s*static constexpr Literal value = "([^"]+)"',
                text):
            self.encodings[name.split("::")[-1]] = code
        for name, base in re.findall(r"enum class (\w+) : ([\w ]+?)\s*{", text):
            self.encodings[name] = {"long": "q", "unsigned long": "Q"}.get(base.strip())

    def encode(self, type_text):
        """The encoding of a C++ type as it is written in the sources; None when unknown."""
        name = re.sub(r"\[\[\w+\]\]", "", type_text).strip()
        if name in self.encodings:
            return self.encodings[name]
        name = re.sub(r"^const (?!char|void)|&$", "", name).strip()
        if re.match(r"(objc::)?Block<", name):
            return "@?"
        if re.match(r"(objc::)?(Strong|Copied)<|(ns::)?(Array|Set)Of<", name):
            return "@"
        if pointer := re.match(r"(const )?(double|char16_t|unsigned char)\*$", name):
            return "^" + self.encodings[pointer[2]]
        return self.encodings.get(name) or self.encodings.get(name.split("::")[-1])

    def read_own(self, text):
        for kind in re.findall(r"objc::Peer<\s*\w+,\s*([\w:]+)", text):
            self.found.own_classes.add(self.kinds[kind.split("::")[-1]])
        for factory, name in re.findall(r'objc::(\w+)<"([^"]+)",\s*&', text):
            capitalised = name[:1].upper() + name[1:]
            if factory in ("method", "classMethod"):
                self.own("+" if factory == "classMethod" else "-", name)
            elif factory in ("property", "flag"):
                self.own("-", f"is{capitalised}" if factory == "flag" else name)
                self.own("-", f"set{capitalised}:")
        for _, kind, names, _ in self.changes(text):
            if kind in ("addition", "classAddition", "exchange"):
                self.own("+" if kind == "classAddition" else "-", names[-1])

    def own(self, side, selector):
        self.found.own_methods.add((side, selector))

    def read_kinds(self, text):
        """The bodies of the handle types: begin, end, class."""
        for match in re.finditer(r'struct (\w+)\s+: objc::Kind<([^{]*)> {', text):
            parts = split(match[2])
            superkind = parts[2].split("::")[-1] if len(parts) > 2 else None
            cls = parts[1].strip('"')
            self.found.classes[cls] = self.kinds[superkind] if superkind else "NSObject"
            yield match.start(), balanced(text, match.end() - 1, "{}")[1], cls

    def receiver(self, word, before, enclosing):
        """The class that a message goes to, told by what stands before it."""
        if word in ("super", "sendSuper") or before.endswith((".", "->", ".template")):
            return None
        if scope := re.search(r"(\w+)::(?:template )?$", before):
            return self.kinds.get(scope[1])
        if enclosing:
            return enclosing
        member = re.findall(r"\b(?:\w+::)?(\w+)::\w+\([^(){}]*\)(?: const)? {", before)
        return self.kinds.get(member[-1]) if member else None

    def read_messages(self, file, text):
        bodies = list(self.read_kinds(text))
        for match in re.finditer(r'\b(sendClass|sendSuper|send|make|super)(?=<")', text):
            word, before = match[1], text[:match.start()].rstrip()
            enclosing = next((c for b, e, c in bodies if b < match.start() < e), None)
            inside, end = balanced(text, match.end(), "<>")
            selector, result = (split(inside) + ["void"])[:2]
            arguments = split(balanced(text, end, "()")[0])
            if before.endswith("objc::"):  # the free functions take the receiver first
                arguments = arguments[2 if word == "sendSuper" else 1:]
            self.found.uses.append(Use(
                place(file, text, match), self.receiver(word, before, enclosing),
                "+" if word == "sendClass" else "-", selector.strip('"'),
                ("@" if word == "make" else self.encode(result),
                 *(self.encode_argument(argument, before) for argument in arguments))))
        for match in re.finditer(r'\b(?:selector<"([^"]+)">\(|sel_registerName\("([^"]+)"\))', text):
            self.found.uses.append(Use(place(file, text, match), None, "-", match[1] or match[2]))
        for cls in re.findall(r'objc_(?:getClass|lookUpClass)\("([^"]+)"\)', text):
            self.found.classes.setdefault(cls, "NSObject")

    def encode_argument(self, argument, before):
        if cast := re.match(r"static_cast<(.*)>\(", argument):
            return self.encode(cast[1])
        if re.fullmatch(r"\d+UL", argument):
            return "Q"
        signatures = re.findall(r"\(([^(){};]*)\)(?: const)?(?: noexcept)? {", before)
        for parameter in split(signatures[-1]) if signatures else []:
            declared = re.fullmatch(r"(.*[ *&])(\w+)", parameter.split("=")[0].strip())
            if declared and declared[2] == argument:
                return self.encode(declared[1])
        return None

    @staticmethod
    def changes(text):
        """The rows of tables of changes: match, kind, class (if named) and selectors, function."""
        for match in re.finditer(
                r"\bobjc::(hook|classHook|exchange|addition|classAddition)<", text):
            *names, function = split(balanced(text, match.end() - 1, "<>")[0])
            if names and all(name.startswith('"') for name in names):
                yield match, match[1], [name.strip('"') for name in names], function

    def read_hooks(self, file, text):
        for match, kind, names, function in self.changes(text):
            if kind not in ("hook", "classHook", "exchange"):
                continue
            cls, types = self.replacement(text, function)
            selector, *_ = names[-2:] if kind == "exchange" else names[-1:]
            if len(names) > (2 if kind == "exchange" else 1):
                cls = names[0]
            if cls:
                self.found.classes.setdefault(cls, "")
            self.found.uses.append(Use(
                place(file, text, match), cls, "+" if kind == "classHook" else "-", selector,
                types, True))

    def find(self, pattern, text):
        """The pattern's first match in a source or in what that includes, and the text around it."""
        included = [self.files.get(file, "") for file in re.findall(r'#include "([^"]+)"', text)]
        for searched in [text, *included]:
            if match := re.search(pattern, searched):
                return match, searched
        return None, text

    def replacement(self, text, function):
        """The class that a replacement's receiver names, and its types; None: not told."""
        name = function.lstrip("&").split("::")[-1]
        definition, text = self.find(rf"\b{name}\(\s*(?:objc::)?Next(?=<)", text)
        if definition is None:
            return None, None
        signature, end = balanced(text, definition.end(), "<>")
        result, arguments = signature.split("(", 1)
        types = tuple(self.encode(t) for t in [result, *split(arguments.rsplit(")", 1)[0])])
        receiver = re.match(r"\s*\w*,\s*(?:\w+::)*(\w+)", text[end:])
        return self.kinds.get(receiver[1]) if receiver else None, types
