// Tests what counts as an old property list, and what its texts mean.
#include "library/preferences/preferences.hpp"

#include <gtest/gtest.h>

namespace wentra::preferences {
namespace {

bool isOldAccepted(const std::string& document) {
    return Preferences::parse(document).on(keys.recolour);
}

TEST(OldPropertyList, AcceptsWhatThePlatformAccepts) {
    const char* documents[] = {
        "{kqwzgs=1;}",
        "{ kqwzgs = YES; }",
        " \n{\n\t\"kqwzgs\" = \"1\";\n\t'a' = 'b\"';\n}\n",
        "// note { \n/* kqwzgs = 0; */ { kqwzgs /**/ = /* { */ 1 // 0\n; }",
        "{ a = (1, (b, ), {c = d;}, < 0fbd 77\n>); b = {kqwzgs = 0;}; d = <>; e = (); kqwzgs = 1; }",
        "{ $a/b:c.d-_ = \"\"; kqwzgs = 1; }",
        "{ kqwzgs = 0; kqwzgs = 1; }",
        "{ \"kq\\167zgs\" = 1; }",
        "kqwzgs = 1;",
        "/* strings */ \"a\" = \"b\"; kqwzgs = 1;\n",
        "\xEF\xBB\xBF{ kqwzgs = 1; }",
        "{ kqwzgs = 1;\u2028}",
        "{ kqwzgs = 1; } // to the end",
        "{ kqwzgs = 1; } /* to the end",
        "kqwzgs = 1; /*",
    };
    for (const char* document : documents) {
        EXPECT_TRUE(isOldAccepted(document)) << document;
    }
}

TEST(OldPropertyList, RejectsMalformedTextAnywhere) {
    const char* documents[] = {
        "{ kqwzgs = 1; ",
        "{ kqwzgs = 1 }",
        "{ kqwzgs = 1; } x",
        "{ kqwzgs = 1; } }",
        "{ kqwzgs = 1; a }",
        "{ kqwzgs = 1; a = ; }",
        "{ kqwzgs = 1; a b; }",
        "{ kqwzgs = 1; a = \"b; }",
        "{ kqwzgs = 1; a = \"b\\",
        "{ kqwzgs = 1; a = (b c); }",
        "{ kqwzgs = 1; a = (,); }",
        "{ kqwzgs = 1; a = (b;); }",
        "{ kqwzgs = 1; a = <0f1>; }",
        "{ kqwzgs = 1; a = <0g>; }",
        "{ kqwzgs = 1; a = <0 f>; }",
        "{ kqwzgs = 1; a = <0f7 7bd>; }",
        "{ kqwzgs = 1; a = <0f",
        "{ kqwzgs = 1; a = <0",
        "{ kqwzgs = 1; a = b+c; }",
        "{ kqwzgs = 1; /* } ",
        "{ kqwzgs = 1; (a) = b; }",
        "{ kqwzgs = 1; a = \"\xFF\"; }",
        "{ kqwzgs = 1; 键 = 1; }",
        "({ kqwzgs = 1; })",
        "kqwzgs = 1; }",
        "kqwzgs",
    };
    for (const char* document : documents) {
        EXPECT_FALSE(isOldAccepted(document)) << document;
    }
}

TEST(OldPropertyList, ResolvesBackslashes) {
    using namespace std::string_view_literals;
    const std::pair<const char*, std::u16string_view> texts[] = {
        {R"(a\"b\'c\\d\\)", u"a\"b'c\\d\\"},
        {R"(\a\b\f\n\r\t\v\x)", u"\a\b\f\n\r\t\vx"},
        {R"(\U5E7f\u5e7f\U41x\Ux\U00412)", u"广u5e7fAx\0xA2"sv},
        {R"(\Ud83d\Ude00 \Ude00)", u"😀 \xDE00"},
        {R"(\101\12x\1011\8)", u"A\nxA18"},
        {R"(\200\256\341\373\377)", u"\u00A0ﬁÆß\uFFFD"},
        {"\\\n\\广告", u"\n广告"},
        {"", u""},
    };
    for (const auto& [text, meaning] : texts) {
        const std::string document = "{ \"百度id\" = \"" + std::string(text) + "\"; }";
        EXPECT_EQ(Preferences::parse(document).text(keys.translationIdentifier), meaning) << text;
    }
}

TEST(OldPropertyList, DepthIsBounded) {
    const auto nested = [](std::size_t depth) {
        return "{kqwzgs=1;a=" + std::string(depth, '(') + std::string(depth, ')') + ";}";
    };
    EXPECT_TRUE(isOldAccepted(nested(511)));
    EXPECT_FALSE(isOldAccepted(nested(512)));
    EXPECT_FALSE(isOldAccepted(nested(1000000)));
}

TEST(OldPropertyList, ItsTextsAreSwitchesNumbersAndTexts) {
    const Preferences preferences =
        Preferences::parse(R"({ kqwzgs = NO; kqxydx = "2.5"; 悬浮球 = 1; })");
    EXPECT_EQ(preferences.number(keys.globalFontSizeIncrease), 0) << "a plain text is ASCII";
    const Preferences quoted = Preferences::parse(
        R"({ kqwzgs = NO; kqwzdx = 1; kqxydx = "2.5"; "悬浮窗口起点" = -60;
             "Host过滤屏蔽" = "a,\n广告"; "\U767e\U5ea6id" = "某人"; "名字"; })");
    EXPECT_FALSE(quoted.on(keys.recolour));
    EXPECT_TRUE(quoted.on(keys.resize));
    EXPECT_EQ(quoted.number(keys.globalFontSizeIncrease), 2.5);
    EXPECT_EQ(quoted.number(keys.panelTop), -60);
    EXPECT_EQ(quoted.text(keys.blockedHosts[0]), u"a,\n广告");
    EXPECT_EQ(quoted.text(keys.translationIdentifier), u"某人");
    EXPECT_EQ(quoted.text("名字"), u"名字");
}

} // namespace
} // namespace wentra::preferences
