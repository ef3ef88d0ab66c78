#!/usr/bin/env python3
"""Checks that a dynamic library is one that a phone loads and that does no harm there.

Usage: binary.py LIBRARY [STUBS]: the Mach-O file, and the folder of the stubs it was linked with."""
import hashlib
import re
import struct
import sys
from pathlib import Path

import macho
from stubs import read_stubs, stub_problems

MINIMUM = (14, 5)
# Every application maps it. With everything it may have 640 KB.
SIZE_BUDGET = 640 * 1024
RUN_PATHS = ["/var/jb/Library/Frameworks", "/var/jb/usr/lib", "@loader_path/.jbroot/Library/Frameworks",
             "@loader_path/.jbroot/usr/lib", "/Library/Frameworks", "/usr/lib"]
BUILD_PATH = re.compile(rb"(?:^|[^a-zA-Z])/(?:home|Users|root|build|tmp|usr/lib/llvm)[/-]|" +
                        re.escape(bytes(Path(__file__).resolve().parents[2])))


def platform(image):
    # Platform 2 is iOS; the version is 16 bits and twice 8.
    return [struct.unpack_from("<2I", c, 8) for c in image.all(macho.BUILD_VERSION)] == [
        (2, MINIMUM[0] << 16 | MINIMUM[1] << 8)]


def foreign_libraries(image):
    return [path for path in image.paths(macho.LOAD)
            if not path.startswith(("/usr/lib/", "/System/Library/", "@rpath/"))]


def signature_holds(image):
    """The hashes of all pages, as the kernel checks them before it runs a page."""
    commands = image.all(macho.SIGNATURE)
    if len(commands) != 1:
        return False
    start, _ = struct.unpack_from("<2I", commands[0], 8)
    count, = struct.unpack_from(">I", image.data, start + 8)
    blobs = [start + struct.unpack_from(">2I", image.data, start + 12 + 8 * i)[1]
             for i in range(count)]
    directory = next((b for b in blobs if image.data[b:b + 4] == b"\xfa\xde\x0c\x02"), None)
    if directory is None:
        return False
    hashes, = struct.unpack_from(">I", image.data, directory + 16)
    slots, limit = struct.unpack_from(">2I", image.data, directory + 28)
    size, kind, _, page = struct.unpack_from("4B", image.data, directory + 36)
    pages = [image.data[at:min(at + (1 << page), limit)] for at in range(0, limit, 1 << page)]
    return (size, kind, slots, limit) == (32, 2, len(pages), start) and all(
        hashlib.sha256(content).digest() ==
        image.data[directory + hashes + 32 * i:directory + hashes + 32 * (i + 1)]
        for i, content in enumerate(pages))


def root_prefixes(image):
    """Paths of a jailbreak's root in the code, other than the prefix that the path resolver knows."""
    return [text for text in image.section("__cstring").split(b"\0")
            if text != b"/var/jb" and (b"/var/jb" in text or b"MobileSubstrate" in text)]


# What has to hold, and the test for it.
RULES = [
    ("it is a 64-bit dynamic library for plain arm64",
     lambda i: i.header[:4] == (0xFEEDFACF, 0x0100000C, 0, 6)),
    ("it is for iOS, from 14.5", platform),
    ("it links only libraries of the phone", lambda i: not foreign_libraries(i)),
    ("it names itself by no path of the machine that built it",
     lambda i: i.paths(macho.ID) == ["@rpath/Wentra.dylib"]),
    ("it looks for the jailbreak's libraries where they are",
     lambda i: i.paths(macho.RUN_PATH) == RUN_PATHS),
    ("its signature holds", signature_holds),
    ("it exports nothing", lambda i: not any(s.external and s.defined for s in i.symbols)),
    ("its local and debugging symbols are stripped", lambda i: all(s.external for s in i.symbols)),
    ("it tells nothing of the machine that built it", lambda i: not BUILD_PATH.search(i.data)),
    ("only the path resolver knows a jailbreak's root", lambda i: not root_prefixes(i)),
    ("its fixups have the classic form",
     lambda i: i.all(macho.DYLD_INFO) and not i.all(macho.CHAINED_FIXUPS)),
    ("it has one initialiser", lambda i: len(i.section("__mod_init_func")) == 8 and
     not i.section("__init_offsets")),
    ("the runtime knows that it has selectors to make",
     lambda i: len(i.section("__objc_imageinfo")) == 8 or not i.section("__objc_selrefs")),
    ("no segment is both writable and executable",
     lambda i: not any(p & 6 == 6 for p in i.protections.values())),
    ("exceptions can pass through it", lambda i: bool(i.section("__unwind_info"))),
    ("it imports nothing of the C++ library",
     lambda i: not any(name.startswith("__Z") for name in i.imports())),
    (f"it is smaller than {SIZE_BUDGET} bytes", lambda i: len(i.data) < SIZE_BUDGET),
]


def main():
    image = macho.MachO(Path(sys.argv[1]).read_bytes())
    folder = sys.argv[2] if len(sys.argv) > 2 else Path(__file__).parents[1] / "stubs"
    problems = [f"does not hold: {what}" for what, holds in RULES if not holds(image)]
    problems += stub_problems(read_stubs(folder), image.imports(), MINIMUM)
    for problem in problems:
        print(f"{sys.argv[1]}: {problem}", file=sys.stderr)
    print(f"binary: {len(image.data)} bytes, {len(image.imports())} imports, "
          f"{len(RULES)} rules, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
