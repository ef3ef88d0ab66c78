// Checks which text a label shows under given text rules.
#include "library/labels/text_replacement.hpp"

#include "tests/library/labels/repeated.hpp"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace wentra::labels {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Rules = std::map<std::u16string, std::u16string, std::less<>>;

std::optional<std::u16string> replacedBy(const Rules& rules, std::u16string_view text) {
    return replacedText(text, [&rules](std::u16string_view key) -> std::optional<std::u16string> {
        const auto found = rules.find(key);
        return found == rules.end() ? std::nullopt : std::optional(found->second);
    });
}

struct Replacement {
    Rules rules;
    std::u16string_view text;
    std::optional<std::u16string> shown;
};

void expectReplacements(const std::vector<Replacement>& cases) {
    for (const Replacement& each : cases) {
        EXPECT_EQ(replacedBy(each.rules, each.text), each.shown);
    }
}

TEST(ReplacedText, prefixRuleReplacesWhatPrecedesTheFirstColon) {
    expectReplacements({
        {{{u"Name", u"名字"}}, u"Name: Bob", u"名字: Bob"},
        {{{u"Name", u"名字"}}, u"Name:a:Name:", u"名字:a:Name:"},
        {{{u"Name", u"名字"}}, u"Name：Bob", std::nullopt},
        {{{u"Name", u"名字"}}, u" Name: Bob", std::nullopt},
        {{{u"", u"空"}}, u": Bob", u"空: Bob"},
        {{{u"Name", u""}}, u"Name: Bob", u": Bob"},
        {{{u"Name", u"a:b"}}, u"Name: Bob", u"a:b: Bob"},
        {{{u"Name", u"名↲字"}}, u"Name:\nBob", u"名\n字:\nBob"},
        {{{u"\xD800"s, u"x"}}, u"\xD800:\0"sv, u"x:\0"s},
    });
}

TEST(ReplacedText, prefixRuleLooksAtTheFirstLineOnly) {
    for (const char16_t terminator : u"\n\v\f\r\u0085\u2028\u2029"sv) {
        const std::u16string key{u'a', terminator, u'b'};
        EXPECT_EQ(replacedBy({{key, u"x"}, {u"b", u"y"}}, key + u": c"), std::nullopt);
        EXPECT_EQ(replacedBy({{u"a", u"x"}}, u"a:"s.append(key)), u"x:"s.append(key));
    }
}

TEST(ReplacedText, wholeRuleReplacesTheWholeText) {
    expectReplacements({
        {{{u"Name", u"名字"}}, u"Name", u"名字"},
        {{{u"Name", u"名字"}}, u"Name ", std::nullopt},
        {{{u"", u"空"}}, u"", u"空"},
        {{{u"a↲b", u"c"}}, u"a\nb", u"c"},
        {{{u"a↲b", u"c"}}, u"a↲b", u"c"},
        {{{u"a\nb", u"c"}}, u"a\nb", std::nullopt},
        {{{u"a", u"x↲y"}}, u"a", u"x\ny"},
        {{{u"a\0"s, u"c"}}, u"a\0"sv, u"c"},
    });
}

TEST(ReplacedText, wholeRuleSeesWhatThePrefixRuleLeft) {
    expectReplacements({
        {{{u"a", u"b"}, {u"b: c", u"done"}}, u"a: c", u"done"},
        {{{u"a", u"b"}, {u"a: c", u"missed"}}, u"a: c", u"b: c"},
        {{{u"a", u"b\nb"}, {u"b↲b:↲c", u"done"}}, u"a:\nc", u"done"},
    });
}

TEST(ReplacedText, lineBreakSignBecomesALineBreakWithoutAnyRule) {
    expectReplacements({
        {{}, u"a↲b", u"a\nb"},
        {{}, u"a\nb↲", u"a\nb\n"},
        {{}, u"a\r\nb", std::nullopt},
    });
}

TEST(ReplacedText, givesNothingWhenTheTextStaysAsItIs) {
    expectReplacements({
        {{}, u"", std::nullopt},
        {{}, u"a: b\nc", std::nullopt},
        {{{u"a", u"a"}}, u"a: b", std::nullopt},
        {{{u"a↲b", u"a↲b"}}, u"a\nb", std::nullopt},
        {{{u"a", u"b"}, {u"b: c", u"a: c"}}, u"a: c", std::nullopt},
    });
}

TEST(ReplacedText, asksOnlyForThePrefixAndTheWhole) {
    std::vector<std::u16string> asked;
    replacedText(u"a:\nb", [&asked](std::u16string_view key) {
        asked.emplace_back(key);
        return std::optional<std::u16string>();
    });
    EXPECT_EQ(asked, (std::vector<std::u16string>{u"a", u"a:↲b"}));
}

TEST(ReplacedText, survivesHugeTexts) {
    EXPECT_EQ(replacedBy({}, test::repeated(u"\n:")), std::nullopt);
    EXPECT_TRUE(replacedBy({}, test::repeated(u"↲")) == test::repeated(u"\n"));
    EXPECT_TRUE(replacedBy({{u"", u"x"}}, test::repeated(u":")) ==
                u"x"s.append(test::repeated(u":")));
}

} // namespace
} // namespace wentra::labels
