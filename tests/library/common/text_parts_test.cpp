// White space, splitting, joining and trimming.
#include "library/common/text_parts.hpp"

#include <gtest/gtest.h>

namespace wentra {
namespace {

using namespace std::string_view_literals;
using Parts = std::vector<std::u16string_view>;

TEST(WhiteSpace, IsMoreThanNewlines) {
    for (const char16_t unit : u"\n\v\f\r\u0085\u2028\u2029"sv) {
        EXPECT_TRUE(isNewline(unit) && isWhiteSpace(unit)) << int{unit};
    }
    for (const char16_t unit : u"\t \u00A0\u1680\u2000\u200A\u202F\u205F\u3000"sv) {
        EXPECT_TRUE(!isNewline(unit) && isWhiteSpace(unit)) << int{unit};
    }
    for (const char16_t unit : u"a\b\x1C\u0084\u0086\u200B\u2027\u202A\u3001\0"sv) {
        EXPECT_FALSE(isNewline(unit) || isWhiteSpace(unit)) << int{unit};
    }
}

TEST(TextParts, LieBetweenSeparators) {
    const auto comma = [](char16_t unit) { return unit == u','; };
    EXPECT_EQ(split(u"", comma), Parts{u""});
    EXPECT_EQ(split(u",", comma), (Parts{u"", u""}));
    EXPECT_EQ(split(u"a,,b c", comma), (Parts{u"a", u"", u"b c"}));
}

TEST(TextParts, EndALineAtEveryNewlineCharacter) {
    EXPECT_EQ(splitLines(u"\n"), (Parts{u"", u""}));
    EXPECT_EQ(splitLines(u"a\r\nb\n\nc"), (Parts{u"a", u"", u"b", u"", u"c"}));
    EXPECT_EQ(splitLines(u"a\vb\fc\u0085d\u2028e\u2029"),
              (Parts{u"a", u"b", u"c", u"d", u"e", u""}));
    EXPECT_EQ(splitLines(u"a\tb\x1C"), Parts{u"a\tb\x1C"});
}

TEST(TextParts, AreJoinedInTheirOrder) {
    const std::vector<std::u16string> parts{u"", u"a", u"a"};
    EXPECT_EQ(joined(parts, u"\n"), u"\na\na");
    EXPECT_EQ(joined({}, u"\n"), u"");
}

TEST(TextParts, LoseWhiteSpaceAtTheStartAlone) {
    EXPECT_EQ(trimmedAtStart(u"\u3000 \na b "), u"a b ");
    EXPECT_EQ(trimmedAtStart(u" \t"), u"");
    EXPECT_EQ(trimmedAtStart(u""), u"");
}

} // namespace
} // namespace wentra
