// What the user's texts list.
#include "library/blocking/user_words.hpp"

#include <gtest/gtest.h>

namespace wentra::blocking {
namespace {

using Words = std::vector<std::u16string>;
using Parts = std::vector<std::u16string_view>;

TEST(UserWords, ACommaEndsAWord) {
    struct Case {
        const char16_t* text;
        Words words;
    };
    const std::vector<Case> cases{
        {u"", {}},
        {u"foo", {}},
        {u"foo,", {u"foo"}},
        {u"foo,bar", {u"foo"}},
        {u"foo,bar,", {u"foo", u"bar"}},
        {u"foo, bar,", {u"foo", u" bar"}},
        {u",,,", {}},
        {u"a#b,", {u"b"}},
        {u"a#b#c,", {u"c"}},
        {u"a#,b,", {u"b"}},
        {u"#,", {}},
        {u"note #\nfoo,\nba\nr,\n", {u"foo", u"bar"}},
        {u"\r\nfoo,", {u"\rfoo"}},
        {u"广告，推广,", {u"广告，推广"}},
        {u"\xD83D,", {u"\xD83D"}},
        {u"foo,a#b", {u"foo"}},
    };
    for (const auto& [text, words] : cases) {
        EXPECT_EQ(wordsEndedByCommas(text), words);
    }
}

TEST(UserWords, StandBetweenCommasAsTheyAre) {
    EXPECT_EQ(wordsBetweenCommas(u"foo, bar"), (Parts{u"foo", u" bar"}));
    EXPECT_EQ(wordsBetweenCommas(u"a#b\nc,,"), (Parts{u"a#b\nc", u"", u""}));
    EXPECT_EQ(wordsBetweenCommas(u""), Parts{u""});
}

} // namespace
} // namespace wentra::blocking
