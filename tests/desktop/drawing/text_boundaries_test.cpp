// Characters and words as people know them.
#include "desktop/drawing/text_boundaries.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace desktop;

namespace {

TEST(TextBoundaries, KeepCharactersTogether) {
    struct Case {
        std::u16string text;
        std::size_t unit;
        Stretch expected;
    };
    for (const auto& [text, unit, expected] : {
             Case{u"abc", 1, {1, 2}},
             Case{u"a你b", 1, {1, 2}},
             Case{u"a😀b", 1, {1, 3}},
             Case{u"a😀b", 2, {1, 3}},
             Case{u"👨‍👩‍👧x", 4, {0, 8}},
             Case{u"🇨🇳🇨🇳", 4, {4, 8}},
             Case{u"e\u0301x", 1, {0, 2}},
             Case{u"❤️", 0, {0, 2}},
             Case{u"a\r\nb", 1, {1, 3}},
             Case{std::u16string{u'a', char16_t{0xD83D}, u'b'}, 1, {1, 2}},
             Case{std::u16string{u'a', char16_t{0xDE00}}, 1, {1, 2}},
             Case{u"abc", 3, {3, 3}},
             Case{u"", 0, {0, 0}},
             Case{std::u16string(3000, u'x') + u"😀", 3001, {3000, 3002}},
         }) {
        EXPECT_EQ(composedCharacter(text, unit), expected) << unit;
    }
}

TEST(TextBoundaries, AllCharactersOfATextEndWhereEachOfThemDoes) {
    std::u16string text;
    const std::u16string some = u"a你😀\r\n👨‍👩‍👧🇨🇳🇨🇳e\u0301\xD83D.\n";
    while (text.size() < 2000) {
        text += some + std::u16string(text.size() % 17, u' ');
    }
    std::vector<std::size_t> ends;
    for (std::size_t start = 0; start < text.size(); start = ends.back()) {
        ends.push_back(composedCharacter(text, start).end);
    }
    EXPECT_EQ(composedCharacterEnds(text), ends);
    EXPECT_EQ(composedCharacterEnds(u""), std::vector<std::size_t>{});
    const std::u16string endless = u"e" + std::u16string(1000, u'\u0301');
    EXPECT_EQ(composedCharacterEnds(endless).back(), endless.size());
}

TEST(TextBoundaries, FindWords) {
    const std::u16string text = u"Hello, big world";
    EXPECT_EQ(wordAround(text, 2), (Stretch{0, 5}));
    EXPECT_EQ(wordAround(text, 5), (Stretch{0, 5}));
    EXPECT_EQ(wordAround(text, 8), (Stretch{7, 10}));
    EXPECT_EQ(wordAround(text, text.size()), (Stretch{11, 16}));
    EXPECT_EQ(wordAround(u"", 0), (Stretch{0, 0}));
    EXPECT_EQ(wordAround(u"...", 1).end - wordAround(u"...", 1).start, 1u);
}

TEST(TextBoundaries, StopTheCaretBehindAndBeforeWords) {
    const std::u16string far =
        u"one" + std::u16string(1000, u' ') + u"two" + std::u16string(500, u'.');
    struct Case {
        std::u16string text;
        std::size_t from;
        std::size_t right;
        std::size_t left;
    };
    for (const auto& [text, from, right, left] : {
             Case{u"one, two", 0, 3, 0},
             Case{u"one, two", 1, 3, 0},
             Case{u"one, two", 3, 8, 0},
             Case{u"one, two", 5, 8, 0},
             Case{u"one, two", 8, 8, 5},
             Case{u"one, two", 99, 8, 5},
             Case{u"...", 1, 3, 0},
             Case{u"", 0, 0, 0},
             Case{far, 3, 1006, 0},
             Case{far, 1003, 1006, 0},
             Case{far, 1006, far.size(), 1003},
             Case{far, far.size(), far.size(), 1003},
         }) {
        EXPECT_EQ(wordEndAfter(text, from), right) << from;
        EXPECT_EQ(wordStartBefore(text, from), left) << from;
    }
}

} // namespace
