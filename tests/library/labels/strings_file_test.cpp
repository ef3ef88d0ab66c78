// Checks that strings files are converted just as the regular expression would, in linear time.
#include "library/labels/strings_file.hpp"

#include "tests/library/labels/repeated.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace wentra::labels {
namespace {

using namespace std::string_view_literals;
using test::repeated;

struct Conversion {
    std::u16string_view text;
    std::u16string_view converted;
};

TEST(ConvertStringsFile, replacesWhatTheExpressionMatches) {
    const Conversion cases[] = {
        {u"", u""},
        {u"plain", u"plain"},
        {uR"("Close"="关闭";)", u"Close===关闭"},
        {uR"("a"="b";"c"="d";)", u"a===bc===d"},
        {uR"(x "a"="b"; y "c"="d"; z)", u"x a===b y c===d z"},
        {uR"("a" = "b";)", uR"("a" = "b";)"},
        {uR"("a"="b")", uR"("a"="b")"},
        {uR"("a"="b" ;)", uR"("a"="b" ;)"},
        {uR"(""="";)", u"==="},
        // The first mark starts the match, however many marks the key then holds.
        {uR"(" "a"="b";)", uR"( "a===b)"},
        {uR"("a"="b"="c";)", uR"(a===b"="c)"},
        {uR"("a"="b"c";)", uR"(a===b"c)"},
        // The closing quotation mark may not be the one that opens the value.
        {uR"("a"=";)", uR"("a"=";)"},
        {uR"("a"=";";)", uR"(a===;)"},
        {uR"("="="";)", uR"(====)"},
        {uR"("="=";)", uR"("="=";)"},
        {u"“a”=“b”;", u"“a”=“b”;"},
        {u"\"\xD800\0\"=\"\0\xDC00\";"sv, u"\xD800\0===\0\xDC00"sv},
    };
    for (const Conversion& each : cases) {
        EXPECT_EQ(convertStringsFile(each.text), each.converted);
    }
}

TEST(ConvertStringsFile, noMatchCrossesALineTerminator) {
    const Conversion cases[] = {
        {uR"("a"="b@c";)", uR"("a"="b@c";)"},
        {uR"("a@b"="c";@)", uR"("a@b"="c";@)"},
        {uR"("@"a"="b";@)", uR"("@a===b@)"},
    };
    for (const char16_t terminator : u"\n\v\f\r\u0085\u2028\u2029"sv) {
        const auto terminated = [terminator](std::u16string_view text) {
            std::u16string result(text);
            std::ranges::replace(result, u'@', terminator);
            return result;
        };
        for (const Conversion& each : cases) {
            EXPECT_EQ(convertStringsFile(terminated(each.text)), terminated(each.converted));
        }
    }
    EXPECT_EQ(convertStringsFile(u"\"a\0\u0084\u2027\"=\"b\";"sv), u"a\0\u0084\u2027===b"sv);
}

TEST(ConvertStringsFile, survivesHugeLines) {
    for (const std::u16string_view part : {u"\""sv, u"\"=\""sv, u"\"=\"a"sv, u"\";"sv, u"\"a"sv}) {
        const std::u16string line = repeated(part);
        EXPECT_TRUE(convertStringsFile(line) == line);
    }
    EXPECT_TRUE(convertStringsFile(repeated(uR"("a"="b";)", 8'000'000)) ==
                repeated(u"a===b", 5'000'000));
}

} // namespace
} // namespace wentra::labels
