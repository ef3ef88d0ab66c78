// Property lists written as XML read back as they were.
#include "desktop/foundation/xml_property_list.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;
using desktop::foundation::xmlPropertyList;

TEST(XmlPropertyList, KeepsEveryKindOfValueAndEveryCharacter) {
    const objc::Pool pool;
    const auto list = ns::MutableDictionary::make();
    list.set(u"😀 \U0010FFFD <&>"_ns, u"😀"_ns);
    list.set(ns::Number::from(true), u"yes"_ns);
    list.set(ns::Number::from(-5LL), u"whole"_ns);
    list.set(ns::Number::from(0.1), u"real"_ns);
    list.set(ns::Data::from("\x01\x02"), u"data"_ns);
    list.set(ns::Date::withTimeIntervalSince1970(1e9), u"date"_ns);
    const auto array = ns::MutableArray::make();
    array.add(ns::MutableDictionary::make());
    array.add(u"a\r\nb"_ns);
    list.set(array, u"array"_ns);
    const std::string xml = xmlPropertyList(list);
    EXPECT_NE(xml.find("<key>😀</key>\n\t<string>😀"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<true/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<date>2001-09-09T01:46:40Z</date>"), std::string::npos) << xml;
    const objc::Object read =
        ns::PropertyListSerialization::propertyList(ns::Data::from(xml)).value;
    EXPECT_TRUE(read.isEqual(list)) << xml;
}

TEST(XmlPropertyList, LeavesOutWhatXmlCannotHold) {
    const objc::Pool pool;
    const auto half = u"a\u0001b😀"_ns.send<"substringToIndex:", ns::String>(4UL);
    const std::string xml = xmlPropertyList(half);
    EXPECT_NE(xml.find("<string>ab\uFFFD</string>"), std::string::npos) << xml;
}

} // namespace
