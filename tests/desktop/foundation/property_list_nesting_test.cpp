// How deep property lists are nested, before anything reads them.
#include "desktop/foundation/property_list_nesting.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/error.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/binary_property_list.hpp"
#include "desktop/foundation/property_list.hpp"
#include "desktop/foundation/property_list_serialization.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ns::literals;
using desktop::foundation::deepestNesting;
using desktop::foundation::isNestedTooDeeply;

std::string repeatedText(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t time = 0; time < times; ++time) {
        all += text;
    }
    return all;
}

std::string oldText(std::size_t levels) {
    return repeatedText("(", levels) + repeatedText(")", levels);
}

std::string xml(std::size_t levels) {
    return "<?xml version=\"1.0\"?><!DOCTYPE plist><plist>" + repeatedText("<array>", levels) +
           "<string>a</string>" + repeatedText("</array>", levels) + "</plist>";
}

std::string binary(std::size_t levels) {
    const objc::Pool pool;
    auto list = ns::MutableArray::make();
    list.add(u"a"_ns);
    for (std::size_t level = 1; level < levels; ++level) {
        const auto outer = ns::MutableArray::make();
        outer.add(list);
        list = outer;
    }
    return desktop::foundation::binaryPropertyList(list);
}

TEST(PropertyListNesting, HasABound) {
    for (const auto& make : {oldText, xml, binary}) {
        EXPECT_FALSE(isNestedTooDeeply(make(deepestNesting))) << make(2);
        EXPECT_TRUE(isNestedTooDeeply(make(deepestNesting + 1))) << make(2);
    }
}

TEST(PropertyListNesting, CountsNothingInTextsAndComments) {
    const std::string many = repeatedText("{", deepestNesting + 1);
    for (const std::string& text :
         {R"("\")" + many + "\"", "'" + many + "'", "/*" + many + "*/", "//" + many,
          "<a><!-- " + repeatedText("<b>", deepestNesting + 3) + " --></a>",
          "<a><![CDATA[ " + repeatedText("<b>", deepestNesting + 3) + " ]]></a>",
          repeatedText("<a/>", deepestNesting + 3), repeatedText("{}", deepestNesting + 1)}) {
        EXPECT_FALSE(isNestedTooDeeply(text)) << text;
    }
    EXPECT_TRUE(isNestedTooDeeply(repeatedText("{/*}*/ a = http://}{;", deepestNesting + 1)));
    EXPECT_TRUE(isNestedTooDeeply(repeatedText("<a><!--</a>-->", deepestNesting + 3)));
}

TEST(PropertyListNesting, AListInItselfIsTooDeep) {
    using namespace std::string_literals;
    const std::string trailer =
        "\0\0\0\0\0\0\1\1"s + "\0\0\0\0\0\0\0\1"s + "\0\0\0\0\0\0\0\0"s + "\0\0\0\0\0\0\0\x0A"s;
    EXPECT_TRUE(isNestedTooDeeply("bplist00\xA1\0\x08"s + trailer));
    EXPECT_FALSE(isNestedTooDeeply("bplist00\xA1\1\x08"s + trailer)) << "no such object";
}

TEST(PropertyListNesting, SurvivesBrokenLists) {
    for (const std::string text : {"", "bplist", "bplist00", "<", "<!--", "'", "\"\\", "/*", ")"}) {
        EXPECT_FALSE(isNestedTooDeeply(text)) << text;
    }
    const std::string list = binary(20);
    for (std::size_t at = 0; at < list.size(); ++at) {
        for (const char byte : {'\0', '\x01', '\x7F', '\xDF', '\xFF'}) {
            std::string broken = list;
            broken[at] = byte;
            static_cast<void>(isNestedTooDeeply(broken)); // whatever it is
            static_cast<void>(isNestedTooDeeply(broken.substr(0, at)));
        }
    }
}

TEST(PropertyListNesting, KeepsTheReaderFromReading) {
    const objc::Pool pool;
    desktop::foundation::installPropertyListSerialization();
    const auto read = [](const std::string& list) {
        return ns::PropertyListSerialization::propertyList(ns::Data::from(list));
    };
    constexpr std::size_t hostile = 300'000;
    for (const std::string& list : {oldText(hostile), xml(hostile)}) {
        const auto [value, error] = read(list);
        EXPECT_FALSE(value);
        EXPECT_EQ(error.code(), 3840);
    }
    for (const auto& make : {oldText, xml, binary}) {
        EXPECT_TRUE(read(make(deepestNesting)).value) << make(2);
    }
}

} // namespace
