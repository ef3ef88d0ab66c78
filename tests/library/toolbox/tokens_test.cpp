// The token cutter, and that it cuts as the regular expression does.
#include "library/toolbox/tokens.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace wentra::toolbox {
namespace {

using Tokens = std::vector<std::u16string_view>;

TEST(Tokens, RunsOfLettersAndIdeographsStayTogether) {
    EXPECT_EQ(cutTokens(u"Hello, 世界!"), (Tokens{u"Hello", u",", u" ", u"世界", u"!"}));
    EXPECT_EQ(cutTokens(u"abc123中文def"), (Tokens{u"abc123", u"中文", u"def"}));
    EXPECT_EQ(cutTokens(u"é\r\nか"), (Tokens{u"é", u"\r", u"\n", u"か"}));
    EXPECT_EQ(cutTokens(u""), Tokens{});
}

TEST(Tokens, TheRunsEndAtTheirBounds) {
    EXPECT_EQ(cutTokens(u"\u4DFF一龥\u9FA6"), (Tokens{u"\u4DFF", u"一龥", u"\u9FA6"}));
    EXPECT_EQ(cutTokens(u"@AZ[`az{/09:"),
              (Tokens{u"@", u"AZ", u"[", u"`", u"az", u"{", u"/", u"09", u":"}));
}

TEST(Tokens, LettersThatDifferOnlyInCaseAreLetters) {
    EXPECT_EQ(cutTokens(u"a\u017Fb\u212Ac"), (Tokens{u"a\u017Fb\u212Ac"}));
}

TEST(Tokens, PairsOfSurrogatesAreOneCharacter) {
    EXPECT_EQ(cutTokens(u"😀😀a"), (Tokens{u"😀", u"😀", u"a"}));
    const std::u16string lone{0xD83D, u'a', 0xDE00, 0xD83D};
    const auto tokens = cutTokens(lone);
    ASSERT_EQ(tokens.size(), 4U);
    EXPECT_EQ(tokens[1], u"a");
}

std::vector<std::u16string> matches(std::u16string_view text) {
    constexpr unsigned long caseInsensitive = 1; // NSRegularExpressionCaseInsensitive
    const auto pattern = ns::String::from(u"([一-龥]+)|([a-zA-Z0-9]+)|([^a-zA-Z0-9一-龥])");
    const auto expression = objc::wrap(objc::object(objc_lookUpClass("NSRegularExpression")))
                                .send<"regularExpressionWithPattern:options:error:", objc::Object>(
                                    pattern, caseInsensitive, static_cast<void*>(nullptr));
    const auto string = ns::String::from(text);
    const auto found = expression.send<"matchesInString:options:range:", ns::Array>(
        string, 0UL, ns::Range{0, text.size()});
    std::vector<std::u16string> tokens;
    for (const objc::Object match : found) {
        const auto range = match.send<"range", ns::Range>();
        tokens.emplace_back(text.substr(range.location, range.length));
    }
    return tokens;
}

bool isSurrogate(unsigned unit) { return (unit & 0xF800U) == 0xD800U; }

// GNUstep's regular expressions match nothing in text with half a pair, so these are left out.

TEST(Tokens, AreTheMatchesOfTheRegularExpression) {
    // Letters of every kind, those that fold to ASCII, bounds of the ranges.
    constexpr std::u16string_view alphabet =
        u"azAZ09一龥中文 ,!\n\r\tſKéßıİＡか\u4DFF\u9FA6\u0300ŉﬁ";
    std::mt19937 random(20);
    for (int round = 0; round < 3000; ++round) {
        const objc::Pool pool;
        std::u16string text;
        for (auto characters = random() % 24; characters > 0; --characters) {
            const auto any = static_cast<char16_t>(random());
            const auto kind = random() % 8;
            if (kind == 0) {
                text.append(u"😀");
            } else {
                text += kind == 1 && !isSurrogate(any) ? any : alphabet[any % alphabet.size()];
            }
        }
        const auto tokens = cutTokens(text);
        const std::vector<std::u16string> cut(tokens.begin(), tokens.end());
        ASSERT_EQ(cut, matches(text)) << "round " << round;
    }
}

TEST(Tokens, EveryCharacterIsCutAsByTheRegularExpression) {
    // Beside a letter, so that it shows whether the character joins a run.
    std::u16string text;
    for (unsigned unit = 1; unit < 0x10000; ++unit) {
        if (!isSurrogate(unit)) {
            text.append(1, u'a').append(1, static_cast<char16_t>(unit));
        }
    }
    const objc::Pool pool;
    const auto tokens = cutTokens(text);
    EXPECT_EQ((std::vector<std::u16string>(tokens.begin(), tokens.end())), matches(text));
}

} // namespace
} // namespace wentra::toolbox
