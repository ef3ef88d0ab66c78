// Edits of a text with a gap.
#include "desktop/foundation/gap_text.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using desktop::foundation::GapText;

std::u16string part(const icu::Replaceable& text, std::int32_t start, std::int32_t limit) {
    icu::UnicodeString result(u"what was there");
    text.extractBetween(start, limit, result);
    return {result.getBuffer(), static_cast<std::size_t>(result.length())};
}

TEST(GapText, ReplacesInAnyOrder) {
    GapText text(u"中文字母");
    text.handleReplaceBetween(1, 2, u"wen ");
    text.handleReplaceBetween(0, 1, u"zhong ");
    text.handleReplaceBetween(11, 12, u"");
    EXPECT_EQ(text.text(), u"zhong wen 字");
    text.handleReplaceBetween(11, 11, u"!");
    text.handleReplaceBetween(0, 10, u"");
    EXPECT_EQ(text.text(), u"字!");
    EXPECT_EQ(text.length(), 2);
}

TEST(GapText, ReadsAndCopiesOverTheGap) {
    GapText text(u"abcdef");
    text.handleReplaceBetween(2, 3, u"C");
    EXPECT_EQ(part(text, 1, 5), u"bCde");
    text.copy(1, 4, 6);
    EXPECT_EQ(text.text(), u"abCdefbCd");
    text.copy(4, 6, 0);
    EXPECT_EQ(text.text(), u"efabCdefbCd");
    EXPECT_EQ(text.charAt(2), u'a');
}

TEST(GapText, KnowsPairsAndHalvesOfSurrogates) {
    GapText text(u"x\U0001F600\xD83D"
                 u"y\xDE00");
    text.handleReplaceBetween(2, 2, u""); // the gap lies between the halves
    const std::array<UChar32, 6> characters{u'x', 0x1F600, 0x1F600, 0xD83D, u'y', 0xDE00};
    for (std::size_t at = 0; at < characters.size(); ++at) {
        EXPECT_EQ(text.char32At(static_cast<std::int32_t>(at)), characters[at]) << at;
    }
}

} // namespace
