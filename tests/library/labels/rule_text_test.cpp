// Checks how rules are read from the editor's text and written back to it.
#include "library/labels/rule_text.hpp"

#include "tests/library/labels/repeated.hpp"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace wentra::labels {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using test::repeated;
using test::tenMegabytes;

using KindKeyValue = std::tuple<RuleKind, std::u16string, std::u16string>;

std::vector<KindKeyValue> flattened(const RuleSet& rules) {
    std::vector<KindKeyValue> flat;
    for (const RuleKind kind : listingOrder) {
        for (const Rule& rule : rules[kind]) {
            flat.emplace_back(kind, rule.key, rule.value);
        }
    }
    return flat;
}

RuleSet ruleSet(const std::vector<KindKeyValue>& flat) {
    RuleSet rules;
    for (const auto& [kind, key, value] : flat) {
        rules[kind].assign(key, value);
    }
    return rules;
}

struct LineCase {
    std::u16string_view line;
    std::vector<KindKeyValue> rules;
};

TEST(ParseRules, readsOneLine) {
    const LineCase cases[] = {
        {u"", {}},
        {u"no marker at all", {}},
        {u"a==b", {}},
        {u"a===b", {{RuleKind::text, u"a", u"b"}}},
        {u"a#=ff0000", {{RuleKind::colour, u"a", u"ff0000"}}},
        {u"a#÷=16", {{RuleKind::size, u"a", u"16"}}},
        {u"a#g=16", {{RuleKind::height, u"a", u"16"}}},
        {u"a#k=16", {{RuleKind::width, u"a", u"16"}}},
        {u"a#z=Menlo", {{RuleKind::font, u"a", u"Menlo"}}},
        {u"a#x=1", {{RuleKind::horizontal, u"a", u"1"}}},
        {u"a#y=1", {{RuleKind::vertical, u"a", u"1"}}},
        {u"a#t=.5", {{RuleKind::alpha, u"a", u".5"}}},
        {u"a#G=16", {}},
        {u"===x", {{RuleKind::text, u"", u"x"}}},
        {u"x===", {{RuleKind::text, u"x", u""}}},
        {u"===", {{RuleKind::text, u"", u""}}},
        {u"a====b", {{RuleKind::text, u"a", u"=b"}}},
        {u"a=====b", {{RuleKind::text, u"a", u"==b"}}},
        {u"a======b", {}},
        {u"a===b===c", {}},
        {u"a===b===", {}},
        {u"a#=b#=c", {}},
        {u" a === b \r", {{RuleKind::text, u" a ", u" b \r"}}},
        {u"a\rb===c", {{RuleKind::text, u"a\rb", u"c"}}},
        {u"a\u2028b===c", {{RuleKind::text, u"a\u2028b", u"c"}}},
        {u"\0===\0\0"sv, {{RuleKind::text, u"\0"s, u"\0\0"s}}},
        {u"\xD83D===\xDE04"sv, {{RuleKind::text, u"\xD83D"s, u"\xDE04"s}}},
    };
    for (const LineCase& each : cases) {
        EXPECT_EQ(flattened(parseRules(each.line)), each.rules) << std::u16string(each.line).size();
    }
}

TEST(ParseRules, firstMarkerInRecognitionOrderDecidesTheKind) {
    const LineCase cases[] = {
        {u"a#=b===c", {{RuleKind::text, u"a#=b", u"c"}}},
        {u"a#÷=1#=b", {{RuleKind::colour, u"a#÷=1", u"b"}}},
        {u"a#g=1#÷=2", {{RuleKind::size, u"a#g=1", u"2"}}},
        {u"a#x=1#g=2", {{RuleKind::height, u"a#x=1", u"2"}}},
        {u"a#y=1#x=2", {{RuleKind::horizontal, u"a#y=1", u"2"}}},
        {u"a#t=1#y=2", {{RuleKind::vertical, u"a#t=1", u"2"}}},
        {u"a#k=1#t=2", {{RuleKind::alpha, u"a#k=1", u"2"}}},
        {u"a#z=1#k=2", {{RuleKind::width, u"a#z=1", u"2"}}},
        {u"a===b===c#=d", {}},
    };
    for (const LineCase& each : cases) {
        EXPECT_EQ(flattened(parseRules(each.line)), each.rules) << std::u16string(each.line).size();
    }
}

TEST(ParseRules, laterLineWinsWithinItsKind) {
    EXPECT_EQ(
        flattened(parseRules(u"x===1\nx#=2\n\nx===3\nx===4===5\n")),
        (std::vector<KindKeyValue>{{RuleKind::text, u"x", u"3"}, {RuleKind::colour, u"x", u"2"}}));
}

TEST(ParseRules, survivesHugeTexts) {
    EXPECT_EQ(parseRules(std::u16string(tenMegabytes, u'=')), RuleSet());
    EXPECT_EQ(parseRules(std::u16string(tenMegabytes, u'\n')), RuleSet());
    EXPECT_EQ(parseRules(repeated(u"a===b\n"))[RuleKind::text].size(), 1U);
    const RuleSet oneLine = parseRules(std::u16string(tenMegabytes, u'#') + u"===1");
    EXPECT_EQ(oneLine[RuleKind::text].begin()->key.size(), tenMegabytes);
}

const std::vector<KindKeyValue> helpExamples = {
    {RuleKind::text, u"文本替换：hello", u"你好"},
    {RuleKind::colour, u"文本颜色：hello", u"ff0000"},
    {RuleKind::size, u"文本大小：hello", u"16"},
    {RuleKind::height, u"文本高度：hello", u"16"},
    {RuleKind::width, u"文本宽度：hello", u"16"},
    {RuleKind::horizontal, u"文本X值：hello", u"16"},
    {RuleKind::vertical, u"文本Y值：hello", u"16"},
    {RuleKind::alpha, u"文本透明：hello", u"0.1"},
    {RuleKind::font, u"文本字体：hello", u"AINile-Bold"},
};

TEST(ListRules, helpTextShowsOneExampleOfEachKind) {
    EXPECT_EQ(flattened(parseRules(helpText)), helpExamples);
}

TEST(ListRules, leavesOutOnlyTheExactExamplesOfTheSameKind) {
    EXPECT_EQ(listRules(ruleSet(helpExamples), RuleSpacing::consecutiveLines), u"");
    EXPECT_EQ(listRules(ruleSet({{RuleKind::text, u"文本替换：hello", u"您好"},
                                 {RuleKind::text, u"hello", u"你好"},
                                 {RuleKind::width, u"文本高度：hello", u"16"}}),
                        RuleSpacing::consecutiveLines),
              u"文本替换：hello===您好\nhello===你好\n文本高度：hello#k=16\n");
}

TEST(ListRules, writesKindsInListingOrderAndRulesInTheirOwn) {
    const RuleSet rules = ruleSet({{RuleKind::font, u"n", u"9"},
                                   {RuleKind::alpha, u"n", u"8"},
                                   {RuleKind::vertical, u"n", u"7"},
                                   {RuleKind::horizontal, u"n", u"6"},
                                   {RuleKind::width, u"n", u"5"},
                                   {RuleKind::height, u"n", u"4"},
                                   {RuleKind::size, u"n", u"3"},
                                   {RuleKind::colour, u"n", u"2"},
                                   {RuleKind::text, u"z", u"1"},
                                   {RuleKind::text, u"a", u"1"}});
    EXPECT_EQ(listRules(rules, RuleSpacing::consecutiveLines),
              u"z===1\na===1\nn#=2\nn#÷=3\nn#g=4\nn#k=5\nn#x=6\nn#y=7\nn#t=8\nn#z=9\n");
}

TEST(ListRules, spacingPutsAnEmptyLineAfterEachRule) {
    const RuleSet rules = ruleSet({{RuleKind::text, u"a", u"1"}, {RuleKind::text, u"b", u"2"}});
    EXPECT_EQ(listRules(rules, RuleSpacing::blankLines), u"a===1\n\nb===2\n\n");
    EXPECT_EQ(parseRules(listRules(rules, RuleSpacing::blankLines)), rules);
}

TEST(EditorText, isTheHelpFollowedByTheRules) {
    EXPECT_EQ(editorText(RuleSet(), RuleSpacing::blankLines), helpText);
    EXPECT_EQ(editorText(ruleSet({{RuleKind::text, u"a", u"1"}}), RuleSpacing::consecutiveLines),
              std::u16string(helpText) + u"a===1\n");
}

} // namespace
} // namespace wentra::labels
