// Estimates of lines: as if each character's width were added up in points.
#include "desktop/drawing/line_estimate.hpp"

#include "desktop/drawing/text_layout.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace {

using desktop::estimateLines;
using desktop::Font;
using desktop::LineEstimate;

constexpr double endlessWidth = std::numeric_limits<double>::infinity();

/// Goes word by word: where one has no room, it begins a line, unless it stands at one's begin.
LineEstimate slowEstimate(std::u16string_view text, const Font& font, double width) {
    LineEstimate estimate;
    const double room = std::min(width, desktop::TextFrame::widestLine);
    double line = 0;
    double word = 0;
    const auto end = [&] {
        ++estimate.lines;
        estimate.width = std::max(estimate.width, std::min(line, room));
    };
    for (const char16_t unit : text) {
        const double one = unit == u'\n' ? 0 : estimateLines({&unit, 1}, font, endlessWidth).width;
        const bool isBlank = unit == u' ' || unit == u'\t';
        if (unit == u'\n') {
            end();
            line = word = 0;
            continue;
        }
        if (!isBlank && line > 0 && line + one > room) {
            const double moved = word < line ? word : 0;
            line -= moved;
            end();
            line = word = moved;
        }
        line += one;
        word = isBlank || unit >= 0x2E80 ? 0 : word + one;
    }
    if (!text.empty() && text.back() != u'\n') {
        end();
    }
    return estimate;
}

std::u16string someText(std::mt19937& random) {
    constexpr std::u16string_view units{u"abcWi.,  \t\n\0é中文\xD83D\xDE00\xD800\u200B\u0301", 20};
    std::u16string text(random() % 200, u'\0');
    std::ranges::generate(text, [&] { return units[random() % units.size()]; });
    return text;
}

TEST(LineEstimate, IsTheSumOfTheWidths) {
    std::mt19937 random(3); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (int count = 0; count < 500; ++count) {
        const std::u16string text = someText(random);
        const Font font{.size = 9.0 + static_cast<double>(random() % 20)};
        for (const double width : {0.3, 10.0, 77.77, 350.0, endlessWidth}) {
            const LineEstimate found = estimateLines(text, font, width);
            const LineEstimate expected = slowEstimate(text, font, width);
            ASSERT_EQ(found.lines, expected.lines) << count << " in " << width;
            ASSERT_DOUBLE_EQ(found.width, expected.width) << count << " in " << width;
        }
    }
}

TEST(LineEstimate, EndsLinesAtTheExactWidth) {
    const Font font;
    const double exact = estimateLines(u"aaaa", font, endlessWidth).width;
    EXPECT_EQ(estimateLines(u"aaaa aaaa", font, exact).lines, 2U);
    EXPECT_EQ(estimateLines(u"aaaa", font, exact).lines, 1U);
    EXPECT_EQ(estimateLines(u"aaaa", font, std::nextafter(exact, 0)).lines, 2U);
}

TEST(LineEstimate, IsNothingWithoutRoom) {
    for (const double width : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(estimateLines(u"text", Font(), width).lines, 0U) << width;
    }
    EXPECT_EQ(estimateLines(u"", Font(), 100).lines, 0U);
    EXPECT_EQ(estimateLines(u"\n\n", Font(), 100).lines, 2U);
}

} // namespace
