// Property lists written in the binary format read back as they were.
#include "desktop/foundation/binary_property_list.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/property_list_serialization.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/property_list_serialization.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace ns::literals;
using desktop::foundation::binaryPropertyList;

objc::Object readBack(objc::Object list) {
    return ns::PropertyListSerialization::propertyList(ns::Data::from(binaryPropertyList(list)))
        .value;
}

TEST(BinaryPropertyList, KeepsEveryKindOfValue) {
    const objc::Pool pool;
    const auto array = ns::MutableArray::make();
    for (const long long value :
         {0LL, 255LL, 256LL, 65535LL, 65536LL, 4294967295LL, 4294967296LL, -1LL, -300LL,
          std::numeric_limits<long long>::max(), std::numeric_limits<long long>::min()}) {
        array.add(ns::Number::from(value));
    }
    for (const auto* text : {u"", u"fourteen chars", u"fifteen charact", u"文字 😀 é", u"é"}) {
        array.add(ns::String::from(text));
    }
    array.add(ns::Number::from(true));
    array.add(ns::Number::from(false));
    array.add(ns::Number::from(-0.1));
    array.add(ns::Data::from(std::string(300, '\x01')));
    array.add(ns::Data::from(""));
    array.add(ns::Date::withTimeIntervalSince1970(1e9));
    array.add(ns::MutableArray::make());
    const auto list = ns::MutableDictionary::make();
    list.set(array, u"array"_ns);
    list.set(u"twice"_ns, u"twice"_ns);
    list.set(ns::MutableDictionary::make(), u"空"_ns);
    EXPECT_TRUE(readBack(list).isEqual(list));
    EXPECT_TRUE(readBack(u"alone"_ns).isEqual(u"alone"_ns));
}

TEST(BinaryPropertyList, UsesTheBytesOfTheFormat) {
    const objc::Pool pool;
    const auto bytes = [](objc::Object list) {
        const std::string file = binaryPropertyList(list);
        return file.substr(8, file.size() - 8 - 1 - 32); // of one object
    };
    EXPECT_EQ(bytes(ns::Number::from(true)), "\x09");
    EXPECT_EQ(bytes(ns::Number::from(-1LL)), "\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF");
    EXPECT_EQ(bytes(ns::Number::from(~0ULL)),
              std::string("\x14\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 17));
    EXPECT_EQ(bytes(ns::Number::from(1.0)), std::string("\x23\x3F\xF0\0\0\0\0\0\0", 9));
    EXPECT_EQ(bytes(u"é"_ns), std::string("\x61\0\xE9", 3));
    EXPECT_EQ(bytes(u"0123456789abcdef"_ns), "\x5F\x10\x10"
                                             "0123456789abcdef");
    EXPECT_EQ(bytes(ns::Date::withTimeIntervalSince1970(978307200)),
              std::string("\x33\0\0\0\0\0\0\0\0", 9));
}

TEST(BinaryPropertyList, KeepsMoreObjectsThanTwoBytesCount) {
    const objc::Pool pool;
    desktop::foundation::installPropertyListSerialization();
    const auto list = ns::MutableDictionary::make();
    constexpr int entries = 33'000; // minutes by a writer that looks each object up in a list
    for (int entry = 0; entry < entries; ++entry) {
        const std::string number = std::to_string(entry);
        list.set(ns::String::fromUtf8("值" + number), ns::String::fromUtf8("key " + number));
    }
    const auto data = ns::PropertyListSerialization::data(list, ns::PropertyListFormat::binary);
    const auto read =
        ns::PropertyListSerialization::propertyList(data.value).value.as<ns::Dictionary>();
    EXPECT_EQ(read.count(), list.count());
    EXPECT_TRUE(read.get(u"key 32999"_ns).isEqual(u"值32999"_ns));
}

} // namespace
