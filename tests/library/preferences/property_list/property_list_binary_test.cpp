// Tests what counts as a binary property list and what its objects mean.
#include "library/preferences/preferences.hpp"
#include "tests/library/preferences/property_list/property_list_writer.hpp"

#include <gtest/gtest.h>

namespace wentra::preferences {
namespace {

// A file whose top dictionary holds one switch that is on and one more object.
std::string fileWith(const std::string& object, const std::string& key = binaryText("kqxydx")) {
    const std::string dictionary = "\xD2" + bigEndianBytes(0x0001000200030004, 8);
    return binaryFile({dictionary, binaryText("kqwzgs"), key, "\x09", object}, 0);
}

bool isBinaryAccepted(const std::string& file) {
    return Preferences::parse(file).on(keys.recolour);
}

TEST(PropertyListBinary, AcceptsEveryKindOfObject) {
    const std::string objects[] = {
        std::string(1, '\0'),
        "\x08",
        "\x10\x05",
        binaryHead(0x1, 4) + std::string(16, '\1'),
        binaryHead(0x2, 2) + std::string(4, '\0'),
        binaryHead(0x3, 3) + std::string(8, '\0'),
        binaryHead(0x4, 3) + "abc",
        binaryHead(0x4, 300) + std::string(300, '\xFF'),
        binaryHead(0x5, 20) + std::string(20, 'a'),
        binaryHead(0x6, 1) + "ab",
        binaryHead(0x8, 0) + "a",
        binaryHead(0xA, 0),
        binaryHead(0xA, 1) + bigEndianBytes(4, 2),
        binaryHead(0xC, 1) + bigEndianBytes(0, 2),
        binaryHead(0xD, 1) + bigEndianBytes(0x00010000, 4),
    };
    for (const std::string& object : objects) {
        EXPECT_TRUE(isBinaryAccepted(fileWith(object))) << testing::PrintToString(object);
    }
}

TEST(PropertyListBinary, RejectsMalformedObjects) {
    const std::string objects[] = {
        "\x01",
        "\x07",
        "\x0A",
        "\x0F",
        binaryHead(0x1, 5) + std::string(32, '\0'),
        binaryHead(0x2, 1) + std::string(2, '\0'),
        binaryHead(0x2, 4) + std::string(16, '\0'),
        binaryHead(0x3, 2) + std::string(8, '\0'),
        "\x70",
        "\x90",
        "\xB0",
        "\xE0",
        "\xF0",
        binaryHead(0x5, 3) + "ab",
        binaryHead(0x5, 1) + "\xE4",
        binaryHead(0x6, 2) + "abc",
        "\x5F",
        "\x5F\x13",
        "\x5F\x50",
        "\x5F\x14" + std::string(16, '\0'),
        "\x5F\x13" + std::string(8, '\xFF'),
        "\x6F\x13\x80" + std::string(7, '\0'),
        "\xDF\x13\x40" + std::string(7, '\0'),
        binaryHead(0xA, 1) + bigEndianBytes(5, 2),
        binaryHead(0xA, 2) + bigEndianBytes(0, 2),
        binaryHead(0xD, 1) + bigEndianBytes(0x00010005, 4),
        binaryHead(0xD, 1) + bigEndianBytes(1, 2),
    };
    for (const std::string& object : objects) {
        EXPECT_FALSE(isBinaryAccepted(fileWith(object))) << testing::PrintToString(object);
    }
}

TEST(PropertyListBinary, KeysAreTexts) {
    EXPECT_TRUE(isBinaryAccepted(fileWith("\x08", binaryText("键"))));
    EXPECT_TRUE(isBinaryAccepted(fileWith("\x08", binaryText(""))));
    EXPECT_FALSE(isBinaryAccepted(fileWith("\x08", "\x10\x05")));
    EXPECT_FALSE(isBinaryAccepted(fileWith("\x08", "\x09")));
}

TEST(PropertyListBinary, KeysMayBeWrittenInUtf16Throughout) {
    const std::string key = binaryHead(0x6, 6) + bigEndianUtf16(u"kqxydx");
    EXPECT_EQ(Preferences::parse(fileWith("\x10\x05", key)).number("kqxydx"), 5);
}

TEST(PropertyListBinary, ReadsNumbersOfEverySize) {
    const std::pair<std::string, double> numbers[] = {
        {"\x10\xFF", 255},
        {binaryHead(0x1, 1) + "\xFF\xFF", 65535},
        {binaryHead(0x1, 2) + "\xFF\xFF\xFF\xFF", 4294967296},
        {binaryHead(0x1, 3) + bigEndianBytes(~std::uint64_t{4}, 8), -5},
        {binaryHead(0x1, 4) + std::string(8, '\0') + bigEndianBytes(1ULL << 63, 8), 0x1p63},
        {binaryHead(0x1, 4) + std::string(16, '\xFF'), 0},
        {binaryHead(0x2, 2) + bigEndianBytes(0x40200000, 4), 2.5},
        {binaryHead(0x2, 3) + bigEndianBytes(0xC004000000000000, 8), -2.5},
    };
    for (const auto& [object, number] : numbers) {
        EXPECT_EQ(Preferences::parse(fileWith(object)).number("kqxydx"), number)
            << testing::PrintToString(object);
    }
}

TEST(PropertyListBinary, WrongTypesReadAsAbsent) {
    for (const std::string& object :
         {std::string(1, '\0'), binaryHead(0x4, 1) + "1", binaryHead(0x8, 0) + "\x01",
          binaryHead(0x3, 3) + std::string(8, '\1'), binaryHead(0xA, 1) + bigEndianBytes(3, 2)}) {
        const Preferences preferences = Preferences::parse(fileWith(object));
        EXPECT_TRUE(preferences.on(keys.recolour));
        EXPECT_FALSE(preferences.on("kqxydx"));
        EXPECT_EQ(preferences.number("kqxydx"), 0);
        EXPECT_EQ(preferences.text("kqxydx"), u"");
    }
}

TEST(PropertyListBinary, KeepsLoneSurrogates) {
    const std::string object = binaryHead(0x6, 3) + bigEndianBytes(0x0061D8000062, 6);
    const std::u16string expected = {u'a', static_cast<char16_t>(0xD800), u'b'};
    EXPECT_EQ(Preferences::parse(fileWith(object)).text("kqxydx"), expected);
}

struct TrailerChange {
    std::size_t fromEnd;
    char byte;
};

TEST(PropertyListBinary, RejectsTrailersThatDoNotFit) {
    const TrailerChange changes[] = {
        {26, 0}, {26, 1}, {26, 3},      {26, 9}, // size of an offset
        {25, 0}, {25, 9},                        // size of a reference
        {17, 0}, {17, 4}, {17, 6},      {24, 1}, // count of objects
        {9, 3},  {9, 5},  {16, '\xFF'},          // top object
        {1, 7},  {1, 0},  {8, '\xFF'},           // place of the table
    };
    const std::string file = fileWith("\x08");
    ASSERT_TRUE(isBinaryAccepted(file));
    for (const auto& [fromEnd, byte] : changes) {
        std::string changed = file;
        changed[file.size() - fromEnd] = byte;
        EXPECT_FALSE(isBinaryAccepted(changed)) << fromEnd << ": " << int{byte};
    }
    EXPECT_FALSE(isBinaryAccepted("bplist00"));
    EXPECT_FALSE(isBinaryAccepted(binaryFile({}, 0)));
    EXPECT_FALSE(isBinaryAccepted("bplist01" + file.substr(8)));
    EXPECT_FALSE(isBinaryAccepted(file + '\0'));
}

TEST(PropertyListBinary, ObjectsThatReferToEachOtherDoNoHarm) {
    const std::string array = binaryHead(0xA, 1) + bigEndianBytes(4, 2);
    EXPECT_TRUE(isBinaryAccepted(fileWith(array)));
}

// Each entry of the offset table names the same array of as many references.
TEST(PropertyListBinary, SharedLargeObjectsAreRefused) {
    constexpr std::size_t count = 200000;
    std::string file = "bplist00" + binaryHead(0xA, count) + std::string(count * 3, '\0');
    const std::size_t table = file.size();
    for (std::size_t index = 0; index < count; ++index) {
        file += '\x08';
    }
    file += bigEndianBytes(1, 7) + '\3' + bigEndianBytes(count, 8) + bigEndianBytes(0, 8) +
            bigEndianBytes(table, 8);
    EXPECT_FALSE(isBinaryAccepted(file));
}

} // namespace
} // namespace wentra::preferences
