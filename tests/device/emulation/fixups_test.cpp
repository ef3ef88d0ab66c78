// The byte code of classic fixups.
#include "device/emulation/fixups.hpp"
#include "device/emulation/refusal.hpp"
#include "tests/device/emulation/written_bytes.hpp"

#include <gtest/gtest.h>

namespace {

using emulation::Binding;
using emulation::BindingTable;
using emulation::Refusal;
using emulation::Segment;
using tests::WrittenBytes;

Segment segment(std::uint64_t address, std::uint64_t size) {
    return {"", address, size, {}, true, true, false};
}

const std::vector<Segment> segments{segment(0, 0x8000), segment(0x8000, 0x4000),
                                    segment(0xC000, 0x40)};

std::vector<std::uint64_t> rebased(const WrittenBytes& code) {
    return emulation::rebasedWords(code.view(), segments);
}

TEST(RebasedWords, AreNamedOneByOneOrInRows) {
    using Words = std::vector<std::uint64_t>;
    EXPECT_EQ(rebased({}), Words{});
    EXPECT_EQ(rebased({0x11, 0x21, 0x10, 0x51}), (Words{0x8010}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x53}), (Words{0xC000, 0xC008, 0xC010}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x60, 0x02}), (Words{0xC000, 0xC008}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x42, 0x51}), (Words{0xC010}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x30, 0x20, 0x51}), (Words{0xC020}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x70, 0x08, 0x51}), (Words{0xC000, 0xC010}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x80, 0x02, 0x08, 0x51}), (Words{0xC000, 0xC010, 0xC020}));
    EXPECT_EQ(rebased({0x22, 0x00, 0x51, 0x00, 0x51}), (Words{0xC000})) << "the end mark";
}

TEST(RebasedWords, RefuseWhatIsUnknown) {
    EXPECT_THROW(rebased({0x12}), Refusal) << "an address of 32 bits";
    EXPECT_THROW(rebased({0x23, 0x00}), Refusal) << "no such segment";
    EXPECT_THROW(rebased({0x90}), Refusal);
    EXPECT_THROW(rebased({0x60}), Refusal) << "cut off";
}

TEST(RebasedWords, LieInTheirSegment) {
    EXPECT_EQ(rebased({0x22, 0x38, 0x51}), (std::vector<std::uint64_t>{0xC038}));
    EXPECT_THROW(rebased({0x22, 0x39, 0x51}), Refusal) << "its last byte is outside";
    EXPECT_THROW(rebased({0x22, 0x00, 0x59}), Refusal) << "nine words where eight are";
    EXPECT_THROW(rebased({0x51}), Refusal) << "in no segment";
}

/// The number of bytes that leads back by them.
WrittenBytes back(std::uint8_t bytes) {
    WrittenBytes number{0x80 - bytes + 0x80};
    for (int i = 0; i < 8; ++i) {
        number.append({0xFF});
    }
    return number.append({0x01});
}

TEST(RebasedWords, AreNotMoreThanTheImageHas) {
    EXPECT_EQ(rebased(WrittenBytes{0x22, 0x08, 0x51, 0x30}.append(back(16)).append({0x51})),
              (std::vector<std::uint64_t>{0xC008, 0xC000}));
    EXPECT_THROW(rebased(WrittenBytes{0x22, 0x00, 0x80, 0xFF, 0xFF, 0xFF, 0x7F}.append(back(8))),
                 Refusal)
        << "one word again and again";
}

std::vector<Binding> bound(const WrittenBytes& code, BindingTable table = BindingTable::eager) {
    return emulation::bindings(code.view(), table, segments);
}

TEST(Bindings, NameTheImportOfEachWord) {
    const WrittenBytes code = WrittenBytes{0x11, 0x40}
                                  .text("_open")
                                  .append({0x51, 0x71, 0x08, 0x90, 0xA0, 0x10})
                                  .append(WrittenBytes{0x41}.text("_new"))
                                  .append({0x60, 0x7C, 0xB1, 0xC0, 0x02, 0x08});
    EXPECT_EQ(bound(code), (std::vector<Binding>{{0x8008, "_open", 0, false},
                                                 {0x8010, "_open", 0, false},
                                                 {0x8028, "_new", -4, true},
                                                 {0x8038, "_new", -4, true},
                                                 {0x8048, "_new", -4, true}}));
}

TEST(Bindings, OfALazyTableGoOnBehindEachEnd) {
    const WrittenBytes code = WrittenBytes{0x72, 0x00, 0x11, 0x40}
                                  .text("_a")
                                  .append({0x90, 0x00, 0x72, 0x08, 0x11, 0x40})
                                  .append(WrittenBytes().text("_b"))
                                  .append({0x90, 0x00, 0x00});
    EXPECT_EQ(bound(code).size(), 1U);
    EXPECT_EQ(bound(code, BindingTable::lazy),
              (std::vector<Binding>{{0xC000, "_a", 0, false}, {0xC008, "_b", 0, false}}));
}

TEST(Bindings, SkipBytes) {
    const WrittenBytes code =
        WrittenBytes{0x40}.text("_a").append({0x20, 0x05, 0x3E, 0x72, 0x00, 0x80, 0x18, 0x90});
    EXPECT_EQ(bound(code), (std::vector<Binding>{{0xC018, "_a", 0, false}}));
}

TEST(Bindings, RefuseWhatIsUnknown) {
    EXPECT_THROW(bound({0x53}), Refusal) << "no address";
    EXPECT_THROW(bound({0xD0}), Refusal) << "threaded";
    EXPECT_THROW(bound({0x40, 'a'}), Refusal) << "a name without an end";
}

} // namespace
