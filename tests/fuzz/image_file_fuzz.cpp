// Fuzzes the loader of the phone's library: any bytes are read as a file and as each of its tables,
// or refused.
#include "device/emulation/call_frames.hpp"
#include "device/emulation/fixups.hpp"
#include "device/emulation/refusal.hpp"
#include "device/emulation/value_shape.hpp"

#include <cstdint>

namespace {

using namespace emulation;

void readFixups(const ImageFile& image) {
    static_cast<void>(rebasedWords(image.rebaseCode, image.segments));
    static_cast<void>(bindings(image.bindCode, BindingTable::eager, image.segments));
    static_cast<void>(bindings(image.lazyBindCode, BindingTable::lazy, image.segments));
}

void readFile(Bytes bytes) { readFixups(readImageFile(bytes)); }

void readFixupCode(Bytes bytes) {
    const auto segment = [](std::uint64_t address) {
        return Segment{"", address, 0x4000, {}, true, true, false};
    };
    readFixups({{segment(0), segment(0x4000)}, {}, bytes, bytes, bytes});
}

void readFrames(Bytes bytes) {
    const auto personality = [](std::uint32_t word) { return std::uint64_t{word}; };
    static_cast<void>(callFrames(readUnwindInfo(bytes), 0, personality));
}

void readTypes(Bytes bytes) {
    static_cast<void>(shapesOf({reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const auto read : {&readFile, &readFixupCode, &readFrames, &readTypes}) {
        try {
            read(std::as_bytes(std::span(data, size)));
        } catch (const Refusal&) {
            continue;
        }
    }
    return 0;
}
