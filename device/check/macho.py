"""Reads a 64-bit Mach-O file: its load commands, sections and symbols."""
import struct
from dataclasses import dataclass, field

SEGMENT, SYMBOLS, ID, LOAD, RUN_PATH, SIGNATURE, BUILD_VERSION = 0x19, 2, 0xD, 0xC, 0x8000001C, 0x1D, 0x32
DYLD_INFO, CHAINED_FIXUPS = 0x80000022, 0x80000034


def c_string(data, start):
    return data[start:data.index(b"\0", start)].decode()


@dataclass(frozen=True)
class Section:
    name: str
    segment: str
    content: bytes


@dataclass(frozen=True)
class Symbol:
    name: str
    external: bool
    defined: bool
    debugging: bool


@dataclass
class MachO:
    data: bytes
    header: tuple = ()
    commands: list = field(default_factory=list)  # number, bytes
    protections: dict = field(default_factory=dict)  # segment -> initial protection
    sections: list = field(default_factory=list)
    symbols: list = field(default_factory=list)

    def __post_init__(self):
        self.header = struct.unpack_from("<8I", self.data)
        at = 32
        for _ in range(self.header[4]):
            number, size = struct.unpack_from("<2I", self.data, at)
            command = self.data[at:at + size]
            self.commands.append((number, command))
            if number == SEGMENT:
                self.read_segment(command)
            elif number == SYMBOLS:
                self.read_symbols(*struct.unpack_from("<4I", command, 8))
            at += size

    def read_segment(self, command):
        name = command[8:24].rstrip(b"\0").decode()
        _, protection, count = struct.unpack_from("<3I", command, 56)
        self.protections[name] = protection
        for at in range(72, 72 + 80 * count, 80):
            size, offset = struct.unpack_from("<QI", command, at + 40)
            self.sections.append(Section(command[at:at + 16].rstrip(b"\0").decode(), name,
                                         self.data[offset:offset + size]))

    def read_symbols(self, offset, count, strings, _size):
        for at in range(offset, offset + 16 * count, 16):
            index, kind = struct.unpack_from("<IB", self.data, at)
            self.symbols.append(Symbol(c_string(self.data, strings + index), bool(kind & 1),
                                       kind & 0x0E != 0, bool(kind & 0xE0)))

    def all(self, number):
        """The contents of every load command with that number."""
        return [command for found, command in self.commands if found == number]

    def paths(self, number):
        """The path in each of those load commands, which tell its offset first."""
        return [c_string(c, struct.unpack_from("<I", c, 8)[0]) for c in self.all(number)]

    def section(self, name):
        return next((s.content for s in self.sections if s.name == name), b"")

    def imports(self):
        return {s.name for s in self.symbols if s.external and not s.defined and not s.debugging}
