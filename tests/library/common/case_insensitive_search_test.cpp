// Searching whatever the case: the quick way and the platform's find the same.
#include "library/common/case_insensitive_search.hpp"

#include "bindings/objc/pool.hpp"
#include "library/common/occurrences.hpp"
#include "library/common/plain_text.hpp"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace wentra;
using Ranges = std::vector<ns::Range>;

class SearchOfEitherCase : public testing::Test {
protected:
    static Ranges found(std::u16string_view text, std::u16string_view sought) {
        return occurrencesIgnoringCase(ns::String::from(text), ns::String::from(sought));
    }
    /// One after the other.
    static Ranges byThePlatform(std::u16string_view text, std::u16string_view sought) {
        Ranges ranges;
        const auto string = ns::String::from(text);
        ns::Range rest{0, text.size()};
        while (const auto range = string.rangeOf(ns::String::from(sought),
                                                 ns::StringCompareOptions::caseInsensitive, rest)) {
            ranges.push_back(*range);
            rest.location = range->location + range->length;
            rest.length = text.size() - rest.location;
        }
        return ranges;
    }

    objc::Pool pool;
};

TEST_F(SearchOfEitherCase, FindsEitherCaseWithoutOverlaps) {
    EXPECT_EQ(found(u"Queue, queue", u"qUEUE"), (Ranges{{0, 5}, {7, 5}}));
    EXPECT_EQ(found(u"aAaAa", u"aa"), (Ranges{{0, 2}, {2, 2}}));
    EXPECT_EQ(found(u"a.c abc", u"a.C"), (Ranges{{0, 3}}));
    EXPECT_EQ(found(u"队列 Queue", u"列 q"), (Ranges{{1, 3}}));
    EXPECT_EQ(found(u"@[`{", u"`"), (Ranges{{2, 1}}));
    EXPECT_EQ(found(u"ab", u"abc"), Ranges{});
    EXPECT_EQ(found(u"ab", u""), Ranges{});
    EXPECT_EQ(found(u"", u"a"), Ranges{});
}

TEST_F(SearchOfEitherCase, KnowsOtherLettersCases) {
    EXPECT_EQ(found(u"É é", u"é"), (Ranges{{0, 1}, {2, 1}}));
    EXPECT_EQ(found(u"ЖУК", u"жук"), (Ranges{{0, 3}}));
}

TEST_F(SearchOfEitherCase, FindsWhatThePlatformFindsInAnyPlainText) {
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    const std::u16string units = u"abABz@ 列（、0";
    for (int round = 0; round < 300; ++round) {
        std::u16string text;
        for (int unit = 0; unit < 200; ++unit) {
            text += units[random() % units.size()];
        }
        const std::u16string sought = text.substr(random() % 190, 1 + random() % 4);
        ASSERT_TRUE(isPlainText(text));
        ASSERT_EQ(occurrences(text, sought, LetterCase::ignored), byThePlatform(text, sought));
    }
}

TEST(PlainText, HasNothingThatCombinesOrHasACaseOfItsOwn) {
    EXPECT_TRUE(isPlainText(u"Queue: 队列（列）"));
    for (const char16_t unit : {u'é', u'\u0301', u'\u212A', u'ſ', u'ß', u'\u200D', u'Ａ', u'\xD83D',
                                u'\u3099', u'Ж', u'\uFEFF'}) {
        EXPECT_FALSE(isPlainText({&unit, 1})) << static_cast<int>(unit);
    }
}

} // namespace
