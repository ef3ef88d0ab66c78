// Which texts pass the filters of the list of copied texts.
#include "library/clipboard/record_filters.hpp"

#include <gtest/gtest.h>

namespace wentra::clipboard {
namespace {

constexpr RecordFilters links{.links = true};
constexpr RecordFilters numbers{.numbers = true};
constexpr RecordFilters letters{.letters = true};

TEST(RecordFilters, LetEverythingPassWhileTheyAreOff) {
    EXPECT_TRUE(passes(u"", {}));
    EXPECT_TRUE(passes(u"a\n1", {}));
}

TEST(RecordFilters, LookForHttpInSmallLettersAnywhere) {
    EXPECT_TRUE(passes(u"see\nhttps://a.example", links));
    EXPECT_TRUE(passes(u"xhttpx", links));
    EXPECT_FALSE(passes(u"HTTP://A.EXAMPLE", links));
    EXPECT_FALSE(passes(u"www.a.example", links));
}

TEST(RecordFilters, LookForDigitsAndLettersInSingleLines) {
    struct Case {
        std::u16string_view text;
        bool hasNumber;
        bool hasLetter;
    };
    constexpr Case cases[]{
        {u"a1", true, true},      {u"abc\n123", false, false}, {u"123\nabc", false, false},
        {u"1\n", false, false},   {u"a\u2028", false, false},  {u"1\u0085", false, false},
        {u"\t1\t", true, false},  {u"٣", true, false},         {u"\U0001D7D8", true, false},
        {u"é", false, false},     {u"ａ", false, false},       {u"Z", false, true},
        {u"汉字 x", false, true}, {u"", false, false},         {u"[@`{", false, false},
        {u"½", false, false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(passes(each.text, numbers), each.hasNumber) << testing::PrintToString(each.text);
        EXPECT_EQ(passes(each.text, letters), each.hasLetter) << testing::PrintToString(each.text);
    }
}

TEST(RecordFilters, AreAllToBePassed) {
    constexpr RecordFilters all{.links = true, .numbers = true, .letters = true};
    EXPECT_TRUE(passes(u"http 1", all));
    EXPECT_FALSE(passes(u"http", all));
    EXPECT_FALSE(passes(u"a1", all));
}

} // namespace
} // namespace wentra::clipboard
