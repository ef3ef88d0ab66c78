// The header, load commands and sections of a Mach-O file.
#include "device/emulation/image_file.hpp"

#include "device/emulation/refusal.hpp"

#include <algorithm>
#include <array>

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

enum : std::uint32_t { magic64 = 0xFEEDFACF, arm64 = 0x0100000C, dylib = 6, bundle = 8 };
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
    if (header.magic != magic64 || header.cpu != arm64) {
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

Section readSection(const SectionRecord& record) {
    const std::string name = textOf(record.name);
    const std::uint32_t kind = record.flags & 0xFFU;
    if (kind >= firstThreadLocal && kind <= lastThreadLocal) {
        throw Refusal("thread-local variables, in the section " + name);
    }
    if (isUnreadObjectiveC(name)) {
        throw Refusal("what a compiler of Objective-C leaves to the runtime, in the section " +
                      name);
    }
    return {name, record.address, record.size, kind == initialisers};
}

class Reader {
public:
    explicit Reader(Bytes file) : file_(file) {}

    ImageFile read() {
        const auto header = valueAt<Header>(file_, 0);
        checkHeader(header);
        std::uint64_t offset = sizeof header;
        for (std::uint32_t left = header.commandCount; left > 0; --left) {
            offset += readCommand(offset);
        }
        if (!hasFixups_) {
            throw Refusal("a file without classic fixups");
        }
        return image_;
    }

private:
    /// The size of the command at that offset.
    std::uint64_t readCommand(std::uint64_t offset) {
        const auto command = valueAt<Command>(file_, offset);
        switch (command.kind) {
        case segmentCommand:
            readSegment(offset);
            break;
        case classicFixups:
        case classicFixupsOnly:
            readFixups(valueAt<FixupsCommand>(file_, offset));
            break;
        case chainedFixups:
            throw Refusal("chained fixups");
        default:
            break;
        }
        return command.size;
    }

    void readSegment(std::uint64_t offset) {
        const auto command = valueAt<SegmentCommand>(file_, offset);
        if (command.fileSize > command.size) {
            throw Refusal("a segment that is smaller than what the file puts there");
        }
        image_.segments.push_back({textOf(command.name), command.address, command.size,
                                   part(file_, command.fileOffset, command.fileSize),
                                   (command.protection & 1U) != 0, (command.protection & 2U) != 0,
                                   (command.protection & 4U) != 0});
        for (std::uint32_t i = 0; i < command.sectionCount; ++i) {
            image_.sections.push_back(readSection(valueAt<SectionRecord>(
                file_, offset + sizeof command + i * sizeof(SectionRecord))));
        }
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
