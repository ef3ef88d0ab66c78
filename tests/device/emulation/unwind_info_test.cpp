// Compact unwind tables, and what is made of them.
#include "device/emulation/call_frames.hpp"
#include "device/emulation/refusal.hpp"
#include "tests/device/emulation/written_bytes.hpp"

#include <gtest/gtest.h>

namespace {

using emulation::FrameRow;
using emulation::Refusal;
using tests::WrittenBytes;

constexpr std::uint32_t plainFrame = 0x04000000;
constexpr std::uint32_t leaf = 0x02002000; // two units of 16 bytes
constexpr std::uint32_t handling = 0x54000001;

/// Functions at 0x1000, 0x1010 and 0x1020 in a compressed page, at 0x2000 and 0x2040 in a regular
/// one; the second and the last have handlers.
WrittenBytes table() {
    WrittenBytes bytes;
    bytes.words({1, 28, 1, 32, 1, 36, 3});            // header
    bytes.words({plainFrame});                        // 28: shared encodings
    bytes.words({0x8040});                            // 32: personalities
    bytes.words({0x1000, 88, 72, 0x2000, 116, 80});   // 36: index
    bytes.words({0x2080, 0, 88});                     //     its end
    bytes.words({0x1010, 0x5000, 0x2040, 0x5010});    // 72: handlers
    bytes.words({3, 3U << 16U | 12, 1U << 16U | 24}); // 88: a compressed page
    bytes.words({0x00000000, 0x01000010, 0x00000020, handling});
    bytes.words({2, 2U << 16U | 8, 0x2000, leaf, 0x2040, handling}); // 116: a regular page
    return bytes;
}

TEST(UnwindInfo, GivesARowForEachFunction) {
    EXPECT_EQ(emulation::readUnwindInfo(table().view()),
              (std::vector<FrameRow>{{0x1000, 0x10, plainFrame, {}},
                                     {0x1010, 0x10, handling, 0x8040, 0x5000},
                                     {0x1020, 0xFE0, plainFrame, {}},
                                     {0x2000, 0x40, leaf, {}},
                                     {0x2040, 0x40, handling, 0x8040, 0x5010}}));
}

TEST(UnwindInfo, IsReadWithinItsBytesOnly) {
    const WrittenBytes whole = table();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THROW(emulation::readUnwindInfo(whole.view().first(size)), Refusal) << size;
    }
}

TEST(UnwindInfo, IsRefusedWhenItDisagreesWithItself) {
    const auto pages = [](std::uint32_t rows, std::uint32_t firstHandlers, std::uint32_t end) {
        return WrittenBytes()
            .words({1, 0, 0, 0, 0, 28, 3})
            .words({0x1000, 64, firstHandlers, 0x1100, 64, 64, end, 0, 64})
            .words({2, rows << 16U | 8, 0x1000, leaf, 0x1010, leaf});
    };
    EXPECT_EQ(emulation::readUnwindInfo(pages(2, 64, 0x2000).view()).size(), 2U);
    for (const WrittenBytes& table :
         {pages(2, 64, 0x100F), pages(2, 72, 0x2000), pages(12, 64, 0x2000)}) {
        EXPECT_THROW(emulation::readUnwindInfo(table.view()), Refusal);
    }
}

std::vector<std::uint8_t> frames(const std::vector<FrameRow>& rows) {
    std::vector<std::uint8_t> bytes;
    for (const std::byte one :
         emulation::callFrames(rows, 0x700000, [](std::uint32_t word) { return word + 1ULL; })) {
        bytes.push_back(std::to_integer<std::uint8_t>(one));
    }
    return bytes;
}

/// The same records, with room for the length in front and the end behind.
std::vector<std::uint8_t> records(std::initializer_list<WrittenBytes> contents) {
    WrittenBytes all;
    for (WrittenBytes content : contents) {
        while ((content.size() + 4) % 8 != 0) {
            content.append({0});
        }
        all.words({static_cast<std::uint32_t>(content.size())}).append(content);
    }
    all.words({0});
    const auto bytes = all.view();
    const auto* first = reinterpret_cast<const std::uint8_t*>(bytes.data());
    return {first, first + bytes.size()};
}

const WrittenBytes plainCommon =
    WrittenBytes{0, 0, 0, 0, 1, 'z', 'R', 0, 1, 0x78, 30, 1, 0, 0x0C, 31, 0};

WrittenBytes function(std::uint32_t common, std::uint64_t start, std::uint64_t size) {
    return WrittenBytes().words({common}).value(start).value(size);
}

TEST(CallFrames, OfALeafTellHowFarTheStackMoved) {
    EXPECT_EQ(frames({{0x10, 0x20, leaf, {}}}),
              records({plainCommon, function(28, 0x700010, 0x20).append({0, 0x0C, 31, 32})}));
}

TEST(CallFrames, OfALeafThatSavesRegistersTellWhere) {
    EXPECT_EQ(frames({{0x10, 0x20, leaf | 1, {}}}),
              records({plainCommon, function(28, 0x700010, 0x20)
                                        .append({0, 0x0C, 31, 32, 0x80 | 19, 1, 0x80 | 20, 2})}));
}

TEST(CallFrames, TellWhereEachPairOfRegistersIs) {
    // x21, x22, d8 and d9
    const FrameRow row{0x10, 0x20, plainFrame | 0x102, {}};
    EXPECT_EQ(frames({row}),
              records({plainCommon, function(28, 0x700010, 0x20)
                                        .append({0, 0x0C, 29, 16, 0x80 | 29, 2, 0x80 | 30, 1})
                                        .append({0x80 | 21, 3, 0x80 | 22, 4})
                                        .append({0x05, 72, 5, 0x05, 73, 6})}));
}

TEST(CallFrames, NameThePersonalityOnceAndTheHandlersOfEach) {
    const WrittenBytes common =
        WrittenBytes{0, 0, 0, 0, 1, 'z', 'P', 'L', 'R', 0, 1, 0x78, 30, 11, 0}
            .value(std::uint64_t{0x8041})
            .append({0, 0, 0x0C, 31, 0});
    const WrittenBytes layout{0x0C, 29, 16, 0x80 | 29, 2, 0x80 | 30, 1, 0x80 | 19, 3, 0x80 | 20, 4};
    const auto handled = [&](std::uint32_t place, std::uint64_t start, std::uint64_t handlers) {
        return function(place, start, 8).append({8}).value(handlers).append(layout);
    };
    EXPECT_EQ(frames({{0x10, 8, handling, 0x8040, 0x5000}, {0x18, 8, handling, 0x8040, 0x5010}}),
              records({common, handled(36, 0x700010, 0x705000), handled(84, 0x700018, 0x705010)}));
}

TEST(CallFrames, LeaveOutWhatAnotherTableHas) {
    EXPECT_EQ(frames({{0x10, 0x20, 0x03000014, {}}}), records({}));
}

TEST(CallFrames, RefuseUnknownForms) {
    EXPECT_THROW(frames({{0x10, 0x20, 0x05000000, {}}}), Refusal);
}

} // namespace
