// Colours of reports and property lists: the one pass against an expression for each word and sign.
#include "library/files/viewers/syntax_colours.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/foundation/regular_expression.hpp"
#include "desktop/foundation/string.hpp"
#include "library/files/viewers/platform_word_roles.hpp"
#include "tests/library/files/viewers/syntax_expressions.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using namespace wentra::files;

using Stretches = std::vector<SyntaxStretch>;

class SyntaxColours : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installStrings();
        desktop::foundation::installRegularExpressions();
    }
    /// One for each unit, as matching one expression after the other gives them.
    static std::vector<Syntax> matched(const std::u16string& text) {
        std::vector<Syntax> colours(text.size(), Syntax::none);
        const auto string = ns::String::from(text);
        for (const auto& [pattern, syntax] : syntaxExpressions) {
            const auto expression =
                ns::RegularExpression::withPattern(ns::String::from(pattern)).value;
            for (const ns::TextCheckingResult match :
                 expression.matches(string, {0, text.size()})) {
                const ns::Range range = match.range();
                std::fill_n(colours.begin() + static_cast<long>(range.location), range.length,
                            syntax);
            }
        }
        return colours;
    }
    static std::vector<Syntax> found(const std::u16string& text) {
        std::vector<Syntax> colours(text.size(), Syntax::none);
        for (const auto& [range, syntax] : syntaxOf(text, PlatformWordRoles())) {
            std::fill_n(colours.begin() + static_cast<long>(range.location), range.length, syntax);
        }
        return colours;
    }
    /// What stands around the first unit of another colour; empty when there is none.
    static std::u16string difference(const std::u16string& text) {
        const auto ours = found(text);
        const auto place =
            static_cast<std::size_t>(std::ranges::mismatch(ours, matched(text)).in1 - ours.begin());
        constexpr std::size_t before = 6;
        return place == text.size() ? u"" : text.substr(place < before ? 0 : place - before, 16);
    }
    static std::u16string shuffled(std::mt19937& random, std::size_t parts) {
        std::u16string text;
        for (std::size_t part = 0; part < parts; ++part) {
            text += pieces[random() % std::size(pieces)];
        }
        return text;
    }

    objc::Pool pool;
    static constexpr std::u16string_view pieces[]{u"1.0",
                                                  u"1",
                                                  u"0",
                                                  u".",
                                                  u"name",
                                                  u"symbol",
                                                  u"path",
                                                  u"Path",
                                                  u"key",
                                                  u"text",
                                                  u"Power Source",
                                                  u"Power",
                                                  u" ",
                                                  u"\n",
                                                  u"\r\n",
                                                  u"\u2028",
                                                  u"\"",
                                                  u"_",
                                                  u"-",
                                                  u"×",
                                                  u"÷",
                                                  u":",
                                                  u";",
                                                  u"(",
                                                  u"]",
                                                  u"<",
                                                  u"/>",
                                                  u"称",
                                                  u"é",
                                                  u"e\u0301",
                                                  u"\u0301",
                                                  u"\u200D",
                                                  u"\u00AD",
                                                  u"😀",
                                                  u"𝐀",
                                                  u"𝟎",
                                                  u"\xD83D",
                                                  u"\xDE00",
                                                  u"①",
                                                  u"٣",
                                                  u"‿",
                                                  u"\u202E",
                                                  u"namespace",
                                                  u"startTimestamp",
                                                  u"Primary state",
                                                  u"1😀0",
                                                  u"1\u03010",
                                                  u"true"};
};

TEST_F(SyntaxColours, CoversWordsAndSigns) {
    EXPECT_EQ(syntaxOf(u"a name: (text)", PlatformWordRoles()),
              (Stretches{{{2, 4}, Syntax::reportWord},
                         {{6, 1}, Syntax::sign},
                         {{8, 1}, Syntax::parenthesis},
                         {{9, 4}, Syntax::listWord},
                         {{13, 1}, Syntax::parenthesis}}));
}

TEST_F(SyntaxColours, JoinsNeighbours) {
    EXPECT_EQ(syntaxOf(u"<><", PlatformWordRoles()), (Stretches{{{0, 3}, Syntax::angleBracket}}));
}

TEST_F(SyntaxColours, LetTheDotBeAnything) {
    EXPECT_EQ(syntaxOf(u"100", PlatformWordRoles()), (Stretches{{{0, 3}, Syntax::reportWord}}));
    EXPECT_EQ(syntaxOf(u"1:0", PlatformWordRoles()), (Stretches{{{0, 1}, Syntax::reportWord},
                                                                {{1, 1}, Syntax::sign},
                                                                {{2, 1}, Syntax::reportWord}}));
    EXPECT_EQ(syntaxOf(u"1\n0", PlatformWordRoles()), Stretches{});
}

TEST_F(SyntaxColours, AreThoseOfTheExpressionsOnAReport) {
    const std::u16string report =
        u"{\"app_name\":\"SpringBoard\",\"timestamp\":\"2024-05-01 10:00:00.00 +0800\","
        u"\"name\":\"名称\",\"build_version\":\"1.0\"}\n{\n  \"exception\" : {\"codes\":"
        u"\"0x0000000000000001\",\"subtype\":\"KERN_INVALID_ADDRESS at 0x10\"},\n"
        u"  \"frames\":[{\"imageOffset\":1234,\"symbol\":\"objc_msgSend\",\"symbolLocation\":32,"
        u"\"imageIndex\":7}],\n  \"parentProc\" : \"launchd\",\"coalitionName\" : \"a.b.c\"\n"
        u"Power Source: Battery; Primary state: (null) × 1-0 ÷ 1é0\n"
        u"<plist version=\"1.0\"><dict><key>名name</key><string>text</string><true/></dict>";
    EXPECT_EQ(found(report), matched(report));
    EXPECT_GT(std::ranges::count(found(report), Syntax::reportWord), 100);
}

TEST_F(SyntaxColours, AreThoseOfTheExpressionsOnAnyText) {
    std::mt19937 random(20240501); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts every time
    for (int round = 0; round < 400; ++round) {
        const std::u16string text = shuffled(random, 40);
        ASSERT_EQ(difference(text), u"");
    }
}

TEST_F(SyntaxColours, AreThoseOfTheExpressionsBesideAnyCharacter) {
    std::u16string text;
    for (char32_t character = 1; character < 0x10000; character += 7) {
        text += static_cast<char16_t>(character);
        text += u"name";
        text += static_cast<char16_t>(character);
        text += u" ";
    }
    EXPECT_EQ(difference(text), u"");
}

} // namespace
