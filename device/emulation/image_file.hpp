// What a Mach-O library's file says of itself.
#pragma once

#include "device/emulation/byte_reader.hpp"

#include <string>
#include <vector>

namespace emulation {

/// A range of addresses, and what the file puts at its beginning.
struct Segment {
    std::string name;
    std::uint64_t address;
    std::uint64_t size;
    Bytes content;
    bool readable;
    bool writable;
    bool executable;
};

struct Section {
    std::string name;
    std::uint64_t address;
    std::uint64_t size;
    bool holdsInitialisers;
};

/// The file of a library, as far as the loader brings it. Addresses count from the image's start.
struct ImageFile {
    std::vector<Segment> segments;
    std::vector<Section> sections;
    Bytes rebaseCode;
    Bytes bindCode;
    Bytes lazyBindCode;

    /// How much memory the image takes, in bytes.
    [[nodiscard]] std::uint64_t size() const;
    /// Null where there is none.
    [[nodiscard]] const Section* sectionNamed(std::string_view name) const;
};

/// Reads the file's bytes, which must live as long as the result. Throws Refusal for anything but a
/// library for arm64 alone with classic fixups, without thread-locals, and whose Objective-C is in
/// its code alone; its segments lie apart then, and its sections within them.
[[nodiscard]] ImageFile readImageFile(Bytes file);

} // namespace emulation
