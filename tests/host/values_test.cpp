// Values on their way through a message and back.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

#include <array>

namespace {

using nlohmann::json;
using namespace std::string_literals;
using support::HostProcess;

class Values : public testing::Test {
protected:
    /// The value as an object, put into an array and taken out again.
    json roundTrip(const json& value) {
        return host.message({{"class", "NSArray"}}, "arrayWithObject:", {value}).at(0);
    }

    HostProcess host = tests::automatedHost({"--app", "plain"});
};

TEST_F(Values, ObjectsComeBackAsTheyWere) {
    for (const char* text : {
             R"("")",
             R"("你好，😀")",
             R"("a\u0000b")",
             R"("line\nbreak")",
             "true",
             "false",
             "0",
             "1",
             "-1",
             "9223372036854775807",
             "-9223372036854775808",
             "18446744073709551615",
             "2.5",
             "1e300",
             "[]",
             "{}",
             R"([1,[true,"x"],{"a":{"b":[2.5]}}])",
             R"({"url":"https://a.b/c?d=e#f"})",
             R"({"date":1700000000.5})",
             R"({"data":"AAECAw=="})",
             R"({"data":""})",
             R"({"class":"UILabel"})",
             "[null]",
             R"({"中文":"键"})",
         }) {
        const json value = json::parse(text);
        const json back = roundTrip(value);
        EXPECT_EQ(back, value);
        EXPECT_EQ(back.type(), value.type()) << text;
    }
}

TEST_F(Values, ATextWithHalfAPairComesBackAsItsUnits) {
    const json half{{"units", {97, 0xD83D}}};
    EXPECT_EQ(host.message("a😀b", "substringWithRange:", {{{"range", {0, 2}}}}), half);
    EXPECT_EQ(roundTrip(half), half);
    EXPECT_EQ(host.message(half, "stringByAppendingString:", {{{"units", {0xDE00}}}}), "a😀");
    const json label = host.result({{"do", "make"}, {"class", "UILabel"}, {"selector", "init"}});
    host.message(label, "setText:", {half});
    EXPECT_EQ(host.result({{"do", "tree"}, {"of", label}}).at("text"), half);
    EXPECT_EQ(host.result({{"do", "pasteboard"}, {"set", half}}), half);
}

TEST_F(Values, UnitsOfWellFormedTextsAreStrings) {
    EXPECT_EQ(roundTrip({{"units", json::array()}}), "");
    EXPECT_EQ(roundTrip({{"units", {0x4F60, 0, 0xD83D, 0xDE00}}}), json("你\0😀"s));
    for (const json& units : {json(-1), json(65536), json(1.5), json("a"), json(nullptr)}) {
        EXPECT_NE(
            host.error({{"do", "send"}, {"to", {{"units", {97, units}}}}, {"selector", "length"}}),
            "")
            << units;
    }
    EXPECT_NE(host.error({{"do", "send"}, {"to", {{"units", 97}}}, {"selector", "length"}}), "");
}

TEST_F(Values, ScalarsAreConvertedByTheMethodsTypes) {
    EXPECT_EQ(host.message("abc", "length"), 3);
    EXPECT_EQ(host.message("abc", "characterAtIndex:", {1}), 'b');
    EXPECT_EQ(host.message("7.5", "doubleValue"), 7.5);
    EXPECT_EQ(host.message("0.5", "floatValue"), 0.5);
    EXPECT_EQ(host.message("YES", "boolValue"), true);
    EXPECT_EQ(host.message("abc", "UTF8String"), "abc");
    EXPECT_EQ(host.message(-3, "intValue"), -3);
    EXPECT_EQ(host.message(-3, "longLongValue"), -3);
    EXPECT_EQ(host.message("a", "isEqual:", {"a"}), true);
    EXPECT_EQ(host.message("a", "isEqual:", {nullptr}), false);
    EXPECT_EQ(host.message({{"class", "NSNumber"}}, "numberWithDouble:", {3}), 3.0);
    EXPECT_EQ(host.message({{"class", "NSNumber"}}, "numberWithBool:", {true}), true);
    EXPECT_EQ(host.message({{"class", "NSNumber"}},
                           "numberWithUnsignedLongLong:", {18446744073709551615ULL}),
              18446744073709551615ULL);
}

TEST_F(Values, DatesBeginWithTheFirstYear) {
    EXPECT_EQ(host.message({{"date", -62'135'596'800}}, "description"),
              "0001-01-01 00:00:00 +0000");
    EXPECT_NE(host.error({{"do", "send"}, {"to", {{"date", -1e12}}}, {"selector", "description"}}),
              "");
}

TEST_F(Values, WhatIsNotFiniteIsNull) {
    const json view = host.message({{"class", "UIView"}}, "new");
    host.message(view, "setFrame:", {{{"rect", {0, 0, 100, 100}}}});
    host.message(view, "setTransform:", {{{"transform", {1e308, 0, 0, 1e308, 0, 0}}}});
    EXPECT_EQ(host.message(view, "frame").at("rect").at(2), nullptr);
}

TEST_F(Values, ClassesAndSelectorsAreValues) {
    EXPECT_EQ(host.message("a", "isKindOfClass:", {{{"class", "NSString"}}}), true);
    EXPECT_EQ(host.message("a", "respondsToSelector:", {{{"selector", "length"}}}), true);
    EXPECT_EQ(host.message({{"class", "UILabel"}}, "superclass"), json({{"class", "UIView"}}));
    EXPECT_EQ(host.message("a", "performSelector:", {{{"selector", "uppercaseString"}}}), "A");
}

TEST_F(Values, StructuresGoInAndComeOut) {
    const json view = host.message({{"class", "UIView"}}, "new");
    for (const auto& [setter, getter, text] : std::vector<std::array<const char*, 3>>{
             {"setFrame:", "frame", R"({"rect":[1,2.5,30,40]})"},
             {"setCenter:", "center", R"({"point":[7,-8.25]})"},
             {"setTransform:", "transform", R"({"transform":[2,0,0,2,5,6]})"}}) {
        EXPECT_EQ(host.message(view, setter, {json::parse(text)}), nullptr);
        EXPECT_EQ(host.message(view, getter), json::parse(text));
    }
    EXPECT_EQ(host.message(view, "sizeThatFits:", {{{"size", {3, 4}}}}),
              json::parse(R"({"size":[30.0,40.0]})"));
    EXPECT_EQ(host.message("hello", "rangeOfString:", {"ll"}), json::parse(R"({"range":[2,2]})"));
}

TEST_F(Values, AnObjectKeepsItsHandleAndItsLife) {
    const json view = host.message({{"class", "UIView"}}, "new");
    EXPECT_EQ(view.at("class"), "UIView");
    EXPECT_TRUE(view.contains("description"));
    EXPECT_EQ(host.message(view, "self").at("object"), view.at("object"));
    EXPECT_EQ(roundTrip(view).at("object"), view.at("object"));
    EXPECT_EQ(roundTrip({{"object", view.at("object")}, {"rect", {1, 2}}}).at("object"),
              view.at("object"));
}

} // namespace
