// Pages of a text, and what the counter says.
#include "library/files/viewers/counter_text.hpp"
#include "library/files/viewers/text_pages.hpp"

#include <gtest/gtest.h>

namespace {

using namespace wentra::files;

using Pages = std::vector<std::u16string_view>;

TEST(TextPages, AreOfOneSizeButForTheLast) {
    EXPECT_EQ(pagesOf(u"", 3), Pages{});
    EXPECT_EQ(pagesOf(u"abc", 3), Pages{u"abc"});
    EXPECT_EQ(pagesOf(u"abcd", 3), (Pages{u"abc", u"d"}));
    EXPECT_EQ(pagesOf(u"abcabc", 3), (Pages{u"abc", u"abc"}));
}

TEST(TextPages, CutCharactersInTwo) {
    EXPECT_EQ(pagesOf(u"a😀", 2), (Pages{u"a\xD83D", u"\xDE00"}));
}

TEST(TextPages, OfNoSizeAreNone) { EXPECT_EQ(pagesOf(u"abc", 0), Pages{}); }

TEST(TextPages, HaveOneUnitMoreThanFitsOnAPageOfItsOwn) {
    EXPECT_EQ(pagesOf(std::u16string(pageSize, u'a'), pageSize).size(), 1U);
    const std::u16string longer(pageSize + 1, u'a');
    ASSERT_EQ(pagesOf(longer, pageSize).size(), 2U);
    EXPECT_EQ(pagesOf(longer, pageSize)[1], u"a");
}

TEST(CounterText, TellsHowManyAndWhich) {
    EXPECT_EQ(matchCount(2), u"2个匹配");
    EXPECT_EQ(matchCount(12, 0), u"12个匹配 (当前第1个)");
}

} // namespace
