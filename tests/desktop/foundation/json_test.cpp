// What Foundation makes of JSON.
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/json_serialization.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/json_serialization.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ns::literals;

objc::Object parsed(std::string_view text) {
    return ns::JsonSerialization::object(ns::Data::from(text)).value;
}

/// The value under "v" of `{"v":…}`.
objc::Object value(const std::string& text) {
    return parsed("{\"v\":" + text + "}").as<ns::Dictionary>().get(u"v"_ns);
}

TEST(Json, TextKeepsEveryCharacter) {
    const objc::Pool pool;
    EXPECT_EQ(value(R"("\u4f60\u597d")").assume<ns::String>().utf16(), u"你好");
    EXPECT_EQ(value(R"("\ud83d\ude00 😀")").assume<ns::String>().utf16(), u"😀 😀");
    EXPECT_EQ(value(R"("a\n\t\"\\\/b")").assume<ns::String>().utf16(), u"a\n\t\"\\/b");
    EXPECT_EQ(value("\"\"").assume<ns::String>().utf16(), u"");
}

TEST(Json, NumbersKeepTheirValues) {
    const objc::Pool pool;
    EXPECT_EQ(value("-9007199254740991").assume<ns::Number>().integerValue(), -9007199254740991);
    EXPECT_EQ(value("-0.25e2").assume<ns::Number>().doubleValue(), -25);
    EXPECT_TRUE(value("true").assume<ns::Number>().boolValue());
    EXPECT_TRUE(value("null").isKindOfClass(objc_lookUpClass("NSNull")));
}

TEST(Json, BrokenTextIsNil) {
    const objc::Pool pool;
    for (const char* text : {"", "{", "{\"a\":", "{\"a\":\"b", "[1", "<html>", "nul", "\xff\xfe{",
                             "{\"a\":1", "[\"\\u12\"]"}) {
        EXPECT_EQ(parsed(text), nullptr) << text;
    }
    EXPECT_TRUE(ns::JsonSerialization::object(nullptr).error);
}

std::string repeatedJson(std::string_view text, std::size_t times) {
    std::string result;
    for (; times > 0; --times) {
        result += text;
    }
    return result;
}

TEST(Json, NestingHasAnEnd) {
    const objc::Pool pool;
    desktop::foundation::installJsonSerialization();
    EXPECT_TRUE(parsed(repeatedJson("[", 512) + repeatedJson("]", 512)));
    EXPECT_TRUE(parsed("[" + repeatedJson("[{}],", 1000) + "1]")) << "beside one another";
    for (const std::string& text :
         {repeatedJson("[", 513) + repeatedJson("]", 513), repeatedJson("[", 1'000'000),
          repeatedJson("{\"a\":", 200'000), repeatedJson({"[\0", 2}, 100'000)}) {
        const auto result = ns::JsonSerialization::object(ns::Data::from(text));
        EXPECT_FALSE(result.value);
        EXPECT_EQ(result.error.code(), 3840);
    }
}

TEST(Json, BracketsOfTextsAreNoNesting) {
    const objc::Pool pool;
    desktop::foundation::installJsonSerialization();
    const std::string brackets = repeatedJson("[", 1000);
    EXPECT_EQ(value("\"" + brackets + "\"").assume<ns::String>().utf8(), brackets);
    EXPECT_TRUE(value("\"\\\"" + brackets + "\"")) << "behind an escaped quotation mark";
}

} // namespace
