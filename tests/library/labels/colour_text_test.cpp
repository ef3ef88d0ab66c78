// Checks how colour texts are taken apart and how forgivingly their digits are read.
#include "library/labels/colour_text.hpp"

#include "tests/library/labels/repeated.hpp"

#include <gtest/gtest.h>

namespace wentra::labels {
namespace {

using namespace std::string_view_literals;

TEST(ParseColourText, splitsAtTheFirstTwoHyphens) {
    const struct {
        std::u16string_view text;
        std::u16string_view colour;
        std::optional<std::u16string_view> alpha;
    } cases[] = {
        {u"", u"", std::nullopt},
        {u"red", u"red", std::nullopt},
        {u"red-0.5", u"red", u"0.5"},
        {u"#ff0000-.5-x-y", u"#ff0000", u".5"},
        {u"red-", u"red", u""},
        {u"-", u"", u""},
        {u"-0.5", u"", u"0.5"},
        {u"red--0.5", u"red", u""},
        {u"\0-\xD800"sv, u"\0"sv, u"\xD800"sv},
    };
    for (const auto& each : cases) {
        const ColourText parsed = parseColourText(each.text);
        EXPECT_EQ(parsed.colour, each.colour);
        EXPECT_EQ(parsed.alpha, each.alpha);
    }
}

TEST(ScanHexadecimal, readsTheLeadingNumber) {
    const struct {
        std::u16string_view text;
        std::uint32_t number;
    } cases[] = {
        {u"", 0},
        {u"0", 0},
        {u"fF0a9", 0xFF0A9},
        {u" \t\r\n\u3000\u00A0ff", 0xFF},
        {u"0xff", 0xFF},
        {u"0XFF", 0xFF},
        {u" 0x ff", 0},
        {u"x10", 0},
        {u"0x0x10", 0},
        {u"0x", 0},
        {u"#ff", 0},
        {u"-1", 0},
        {u"12 34", 0x12},
        {u"12g4", 0x12},
        {u"1\0002"sv, 1},
        {u"１２", 0},
        {u"\xD800", 0},
        {u"ffffffff", 0xFFFFFFFF},
        {u"0000000012345678", 0x12345678},
        {u"100000000", 0xFFFFFFFF},
        {u"123456789abcdef0123456789", 0xFFFFFFFF},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(scanHexadecimal(each.text), each.number) << std::u16string(each.text).size();
    }
}

TEST(ScanHexadecimal, survivesHugeTexts) {
    EXPECT_EQ(scanHexadecimal(test::repeated(u" ") + u"1f"), 0x1FU);
    EXPECT_EQ(scanHexadecimal(test::repeated(u"f")), 0xFFFFFFFFU);
}

TEST(ColourFromRgb, takesOneByteForEachComponentAndIgnoresTheRest) {
    EXPECT_EQ(colourFromRgb(0xFF336600), (Colour{0x33 / 255.0, 0x66 / 255.0, 0, 1}));
    EXPECT_EQ(colourFromRgb(0x0000FF), (Colour{0, 0, 1, 1}));
}

TEST(HexColour, takesASignOrSixUnits) {
    const Colour red{1, 0, 0, 1};
    const Colour black{0, 0, 0, 1};
    const struct {
        std::u16string_view text;
        std::optional<Colour> colour;
    } cases[] = {
        {u"ff0000", red},
        {u"#ff0000", red},
        {u"#ffff0000", red},
        {u"#0xff0000", red},
        {u"# ff0000", red},
        {u"orange", black},
        {u"##ff00", black},
        {u"#", black},
        {u"#f", Colour{0, 0, 15 / 255.0, 1}},
        {u"", std::nullopt},
        {u"ff000", std::nullopt},
        {u"ff00000", std::nullopt},
        {u"0xff0000", std::nullopt},
        {u"red", std::nullopt},
        {u"😄😄😄", black},
        {u"红红红红红红", black},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(hexColour(each.text), each.colour) << std::u16string(each.text).size();
    }
}

} // namespace
} // namespace wentra::labels
