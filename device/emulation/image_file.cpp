// The header, load commands and sections of a Mach-O file.
#include "device/emulation/image_file.hpp"

#include "device/emulation/refusal.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace emulation {
namespace {

// The structures of the file format, under our names.
struct Header {
    std::uint32_t magic, cpu, cpuKind, fileType, commandCount, commandSize, flags, reserved;
};
struct Command {
    std::uint32_t kind, size;
};
struct SegmentCommand {
    Command command;
    std::array<char, 16> name;
    std::uint64_t address, size, fileOffset, fileSize;
    std::uint32_t mostProtection, protection, sectionCount, flags;
};
struct SectionRecord {
    std::array<char, 16> name, segment;
    std::uint64_t address, size;
    std::uint32_t offset, alignment, relocations, relocationCount, flags;
    std::array<std::uint32_t, 3> reserved;
};
struct TablePlace {
    std::uint32_t offset, size;
};
struct FixupsCommand {
    Command command;
    TablePlace rebase, bind, weakBind, lazyBind, exports;
};

enum : std::uint32_t { magic64 = 0xFEEDFACF, dylib = 6, bundle = 8 };
/// The kinds 0 and 1 are plain arm64; arm64e, which signs its addresses, is another one.
enum : std::uint32_t { arm64 = 0x0100000C, lastPlainKind = 1 };
enum : std::uint32_t {
    segmentCommand = 0x19,
    classicFixups = 0x22,
    classicFixupsOnly = 0x80000022,
    chainedFixups = 0x80000034
};
enum : std::uint32_t { initialisers = 9, firstThreadLocal = 0x11, lastThreadLocal = 0x15 };

template <std::size_t size>
std::string textOf(const std::array<char, size>& characters) {
    return {characters.begin(), std::ranges::find(characters, '\0')};
}

void checkHeader(const Header& header) {
    if (header.magic != magic64 || header.cpu != arm64 || header.cpuKind > lastPlainKind) {
        throw Refusal("not a file for arm64 alone");
    }
    if (header.fileType != dylib && header.fileType != bundle) {
        throw Refusal("not a library");
    }
}

/// The runtime of a phone reads these sections when it loads an image; ours reads only these two.
bool isUnreadObjectiveC(std::string_view name) {
    return name.starts_with("__objc_") && name != "__objc_selrefs" && name != "__objc_imageinfo";
}

/// Much more than any library needs, and little enough to be mapped anywhere.
constexpr std::uint64_t largestImage = std::uint64_t{1} << 26U;

void checkSize(const SegmentCommand& command) {
    if (command.address > largestImage || command.size > largestImage - command.address) {
        throw Refusal("an image of more than 64 megabytes");
    }
    if (command.fileSize > command.size) {
        throw Refusal("a segment that is smaller than what the file puts there");
    }
}

template <class Inner>
bool isWithin(const Inner& inner, const Segment& segment) {
    return inner.address >= segment.address && inner.size <= segment.size &&
           inner.address - segment.address <= segment.size - inner.size;
}

bool overlap(const Segment& one, const Segment& other) {
    return one.address < other.address + other.size && other.address < one.address + one.size;
}

Section readSection(const SectionRecord& record, const Segment& segment) {
    const std::string name = textOf(record.name);
    const std::uint32_t kind = record.flags & 0xFFU;
    if (kind >= firstThreadLocal && kind <= lastThreadLocal) {
        throw Refusal("thread-local variables, in the section " + name);
    }
    if (isUnreadObjectiveC(name)) {
        throw Refusal("what a compiler of Objective-C leaves to the runtime, in the section " +
                      name);
    }
    if (!isWithin(record, segment)) {
        throw Refusal("a section outside its segment: " + name);
    }
    return {name, record.address, record.size, kind == initialisers};
}

class Reader {
public:
    explicit Reader(Bytes file) : file_(file) {}

    ImageFile read() {
        const auto header = valueAt<Header>(file_, 0);
        checkHeader(header);
        Bytes commands = part(file_, sizeof header, header.commandSize);
        for (std::uint32_t left = header.commandCount; left > 0; --left) {
            commands = commands.subspan(readFirst(commands));
        }
        if (!hasFixups_) {
            throw Refusal("a file without classic fixups");
        }
        return image_;
    }

private:
    /// The first command's size.
    std::uint64_t readFirst(Bytes commands) {
        const auto [kind, size] = valueAt<Command>(commands, 0);
        if (size < sizeof(Command)) {
            throw Refusal("a load command that is smaller than its head");
        }
        const Bytes command = part(commands, 0, size);
        switch (kind) {
        case segmentCommand:
            readSegment(command);
            break;
        case classicFixups:
        case classicFixupsOnly:
            readFixups(valueAt<FixupsCommand>(command, 0));
            break;
        case chainedFixups:
            throw Refusal("chained fixups");
        default:
            break;
        }
        return size;
    }

    void readSegment(Bytes bytes) {
        const auto command = valueAt<SegmentCommand>(bytes, 0);
        checkSize(command);
        addSegment({textOf(command.name), command.address, command.size,
                    part(file_, command.fileOffset, command.fileSize),
                    (command.protection & 1U) != 0, (command.protection & 2U) != 0,
                    (command.protection & 4U) != 0});
        for (std::uint32_t i = 0; i < command.sectionCount; ++i) {
            const auto record =
                valueAt<SectionRecord>(bytes, sizeof command + i * sizeof(SectionRecord));
            image_.sections.push_back(readSection(record, image_.segments.back()));
        }
    }

    void addSegment(Segment added) {
        for (const Segment& segment : image_.segments) {
            if (overlap(segment, added)) {
                throw Refusal("the segments " + segment.name + " and " + added.name +
                              " in one place");
            }
        }
        image_.segments.push_back(std::move(added));
    }

    void readFixups(const FixupsCommand& command) {
        if (command.weakBind.size != 0) {
            throw Refusal("definitions that another image may replace");
        }
        const auto code = [this](TablePlace place) {
            return part(file_, place.offset, place.size);
        };
        image_.rebaseCode = code(command.rebase);
        image_.bindCode = code(command.bind);
        image_.lazyBindCode = code(command.lazyBind);
        hasFixups_ = true;
    }

    Bytes file_;
    ImageFile image_;
    bool hasFixups_ = false;
};

} // namespace

std::uint64_t ImageFile::size() const {
    std::uint64_t end = 0;
    for (const Segment& segment : segments) {
        end = std::max(end, segment.address + segment.size);
    }
    return end;
}

const Section* ImageFile::sectionNamed(std::string_view name) const {
    const auto found = std::ranges::find(sections, name, &Section::name);
    return found == sections.end() ? nullptr : &*found;
}

ImageFile readImageFile(Bytes file) { return Reader(file).read(); }

} // namespace emulation
