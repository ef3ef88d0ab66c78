// Lines that hold fragments: the same as by looking through each.
#include "library/analysis/lines_holding.hpp"

#include "library/common/text_parts.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>

namespace wentra::analysis {
namespace {

constexpr std::array<std::u16string_view, 2> fragments{u"aa", u"b"};

using Lines = std::vector<std::u16string_view>;

TEST(LinesHolding, AreWholeAndNamedOnce) {
    EXPECT_EQ(linesHolding(u"aab b\nc\n\nb\r\naa", fragments), (Lines{u"aab b", u"b\r", u"aa"}));
    EXPECT_EQ(linesHolding(u"a\na\n", fragments), Lines{}) << "nothing spans two lines";
    EXPECT_EQ(linesHolding(u"", fragments), Lines{});
}

TEST(LinesHolding, HoldWhatIsAcceptedAfterWhatIsNot) {
    const auto endsLine = [](std::u16string_view rest) {
        return rest.size() == 1 || rest[1] == u'\n';
    };
    EXPECT_EQ(linesWhere(u"..x\n.x..\n\nx\n.", u".", endsLine), (Lines{u".x..", u"."}));
    EXPECT_EQ(linesWhere(u"", u".", endsLine), Lines{});
}

TEST(LinesHolding, AreThoseFoundLineByLine) {
    std::mt19937 random(11); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    const std::u16string units = u"aaccccccccccccccccccccccccccccccccb\n\n";
    for (int round = 0; round < 300; ++round) {
        std::u16string text;
        for (int unit = 0; unit < 400; ++unit) {
            text += units[random() % units.size()];
        }
        auto expected = split(text, u'\n');
        std::erase_if(expected, [](std::u16string_view line) {
            return std::ranges::none_of(fragments, [line](std::u16string_view fragment) {
                return line.find(fragment) != line.npos;
            });
        });
        ASSERT_EQ(linesHolding(text, fragments), expected);
    }
}

} // namespace
} // namespace wentra::analysis
