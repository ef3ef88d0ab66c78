// Numbers and texts of a file's tables.
#include "device/emulation/refusal.hpp"
#include "tests/device/emulation/written_bytes.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using emulation::ByteReader;
using emulation::Refusal;
using tests::WrittenBytes;

TEST(ByteReader, ReadsNumbersOfAnyLength) {
    const WrittenBytes written{0x00, 0x7F, 0x80, 0x01, 0xE5, 0x8E, 0x26};
    ByteReader reader(written.view());
    EXPECT_EQ(reader.number(), 0U);
    EXPECT_EQ(reader.number(), 127U);
    EXPECT_EQ(reader.number(), 128U);
    EXPECT_EQ(reader.number(), 624485U);
    EXPECT_TRUE(reader.empty());
}

TEST(ByteReader, ReadsSignedNumbers) {
    const WrittenBytes written{0x02, 0x7E, 0xFF, 0x00, 0x80, 0x7F, 0x80, 0x80,
                               0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x7F};
    ByteReader reader(written.view());
    EXPECT_EQ(reader.signedNumber(), 2);
    EXPECT_EQ(reader.signedNumber(), -2);
    EXPECT_EQ(reader.signedNumber(), 127);
    EXPECT_EQ(reader.signedNumber(), -128);
    EXPECT_EQ(reader.signedNumber(), std::numeric_limits<std::int64_t>::min());
}

TEST(ByteReader, ReadsTexts) {
    const WrittenBytes written = WrittenBytes().text("_open").text("").value('x');
    ByteReader reader(written.view());
    EXPECT_EQ(reader.text(), "_open");
    EXPECT_EQ(reader.text(), "");
    EXPECT_THROW(reader.text(), Refusal) << "it has no end";
}

TEST(ByteReader, NeverReadsPastTheEnd) {
    const WrittenBytes unfinished{0x80};
    EXPECT_THROW(ByteReader(unfinished.view()).number(), Refusal);
    EXPECT_THROW(ByteReader(emulation::Bytes()).byte(), Refusal);
    const WrittenBytes endless{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x00};
    EXPECT_THROW(ByteReader(endless.view()).number(), Refusal);
    EXPECT_THROW(emulation::part(unfinished.view(), 1, 1), Refusal);
    EXPECT_THROW(emulation::part(unfinished.view(), ~std::uint64_t{0}, 2), Refusal);
    EXPECT_THROW(emulation::valueAt<std::uint16_t>(unfinished.view(), 0), Refusal);
}

} // namespace
