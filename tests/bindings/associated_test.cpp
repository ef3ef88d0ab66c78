// Values tied to an object's life.
#include "bindings/foundation/string.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;
using objc::Association;

ns::String mutableString() {
    return objc::wrap<ns::String>(
        objc::send<"string", id>(objc::object(objc_getClass("NSMutableString"))));
}

unsigned long references(objc::Object object) {
    return object.send<"retainCount", unsigned long>();
}

TEST(Associated, AValueIsKeptUnderItsSelectorUntilItIsReplaced) {
    const objc::Pool pool;
    const auto owner = mutableString();
    const auto other = mutableString();
    objc::associate<"first">(owner, u"one"_ns, Association::retainNonatomic);
    objc::associate<"second">(owner, u"two"_ns, Association::retainNonatomic);
    EXPECT_EQ(objc::associated<"first">(owner), objc::Object(u"one"_ns));
    EXPECT_EQ(objc::associated<"second">(owner), objc::Object(u"two"_ns));
    EXPECT_FALSE(objc::associated<"first">(other));
    objc::associate<"first">(owner, nullptr, Association::retainNonatomic);
    EXPECT_FALSE(objc::associated<"first">(owner));
}

TEST(Associated, ThePolicySaysWhoOwnsTheValue) {
    const objc::Pool pool;
    const auto value = mutableString();
    const auto before = references(value);
    {
        const objc::Pool inner;
        const auto owner = mutableString();
        objc::associate<"assigned">(owner, value, Association::assign);
        EXPECT_EQ(references(value), before);
        objc::associate<"retained">(owner, value, Association::retainNonatomic);
        EXPECT_EQ(references(value), before + 1);
        objc::associate<"copied">(owner, value, Association::copyNonatomic);
        EXPECT_NE(objc::associated<"copied">(owner), objc::Object(value));
    }
    EXPECT_EQ(references(value), before) << "the owner is gone and what it held is not";
}

} // namespace
