// Words, lines and pages of the rule editor.
#include "library/labels/rule_editor/editor_text.hpp"

#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"
#include "library/labels/rule_text.hpp"

#include <gtest/gtest.h>

#include <random>

namespace wentra::labels {
namespace {

TEST(EditorText, AWordEndsAtDelimitersOnBothSides) {
    constexpr std::u16string_view text = u"hello#=ff÷你好，a b\"c\"";
    struct Case {
        std::size_t position;
        ns::Range word;
    };
    for (const auto& [position, word] :
         {Case{0, {0, 6}},                                         // "hello#", at its start
          Case{3, {0, 6}},                                         // inside
          Case{6, {0, 6}},                                         // at its end
          Case{7, {7, 2}},                                         // "ff"
          Case{11, {10, 2}},                                       // "你好"
          Case{13, {13, 1}}, Case{15, {15, 1}}, Case{17, {17, 1}}, // between the quotation marks
          Case{19, {19, 0}}, Case{99, {19, 0}}}) {
        EXPECT_EQ(wordAt(text, position), word) << position;
    }
    EXPECT_EQ(wordAt(u"", 0), (ns::Range{0, 0}));
    EXPECT_EQ(wordAt(u"a==b", 2), (ns::Range{2, 0}));
    for (const char16_t delimiter : std::u16string_view(u" \n\":,，。↲.;=(){}<>*[]@'×-÷+！？")) {
        EXPECT_EQ(wordAt(std::u16string(u"ab") + delimiter + u"cd", 1), (ns::Range{0, 2}));
    }
}

TEST(EditorText, LinesAreThoseOfThePlatform) {
    const objc::Pool pool;
    constexpr std::u16string_view alphabet = u"ab\n\u2028\u2029";
    std::mt19937 random(7);
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    for (int round = 0; round < 2000; ++round) {
        std::u16string text(below(9), u'\0');
        for (char16_t& unit : text) {
            unit = alphabet[below(alphabet.size())];
        }
        const std::size_t location = below(text.size() + 1);
        const ns::Range selection{location, below(text.size() - location + 1)};
        const auto expected =
            ns::String::from(text).send<"lineRangeForRange:", ns::Range>(selection);
        EXPECT_EQ(linesOf(text, selection), expected)
            << ns::description(ns::String::from(text)).utf8() << " " << selection.location << " "
            << selection.length;
    }
    // GNUstep counts these otherwise than phones.
    EXPECT_EQ(linesOf(u"ab\u0085c", {3, 0}), (ns::Range{3, 1}));
    EXPECT_EQ(linesOf(u"a\r\nb\r", {0, 0}), (ns::Range{0, 3}));
    EXPECT_EQ(linesOf(u"a\r\nb\r", {2, 0}), (ns::Range{0, 3})) << "inside of a break";
    EXPECT_EQ(linesOf(u"a\r\nb\r", {1, 3}), (ns::Range{0, 5}));
    EXPECT_EQ(linesOf(u"a\r\nb\r", {5, 0}), (ns::Range{5, 0}));
    EXPECT_EQ(linesOf(u"ab\nc", {99, 5}), (ns::Range{3, 1}));
}

TEST(EditorText, FourBreaksAtTheEndSave) {
    EXPECT_TRUE(endsWithFourBreaks(u"a===b\n\n\n\n"));
    EXPECT_TRUE(endsWithFourBreaks(u"\n\n\n\n\n"));
    EXPECT_FALSE(endsWithFourBreaks(u"a\n\n\n\nb"));
    EXPECT_FALSE(endsWithFourBreaks(u"a\n\n\n"));
    EXPECT_FALSE(endsWithFourBreaks(u""));
}

TEST(EditorText, TheHelpIsNoPartOfWhatIsExported) {
    const std::u16string help(helpText);
    EXPECT_EQ(withoutHelp(help + u"a===b\n"), u"a===b\n");
    EXPECT_EQ(withoutHelp(u"x" + help + u"y" + help), u"xy");
    EXPECT_EQ(withoutHelp(help.substr(1)), help.substr(1)) << "a changed help text stays";
}

TEST(EditorText, PagesEndAtTheContent) {
    EXPECT_EQ(nextPage(0, 100, 250), 100);
    EXPECT_EQ(nextPage(100, 100, 250), 150);
    EXPECT_EQ(nextPage(0, 100, 60), -40) << "a short text goes to a negative offset";
    EXPECT_EQ(previousPage(150, 100), 50);
    EXPECT_EQ(previousPage(50, 100), 0);
}

} // namespace
} // namespace wentra::labels
