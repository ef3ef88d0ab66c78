// Copying property lists, and user defaults as values in memory.
#include "desktop/foundation/user_defaults.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/null.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/property_list.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;
using desktop::foundation::DeviceUserDefaults;
using desktop::foundation::DeviceUserDefaultsKind;
using desktop::foundation::propertyListCopy;

class UserDefaults : public testing::Test {
protected:
    static void SetUpTestSuite() { DeviceUserDefaults::registerClass(); }

    objc::Pool pool;
    ns::UserDefaults defaults = DeviceUserDefaultsKind::make();
};

TEST_F(UserDefaults, AreSnapshots) {
    const auto inner = ns::MutableDictionary::make();
    inner.set(u"one"_ns, u"key"_ns);
    const auto outer = ns::MutableArray::make();
    outer.add(inner);
    defaults.set(outer, u"list"_ns);
    inner.set(u"two"_ns, u"key"_ns);
    outer.add(u"more"_ns);
    const auto kept = defaults.get(u"list"_ns).as<ns::Array>();
    ASSERT_EQ(kept.count(), 1U);
    EXPECT_TRUE(kept.first().as<ns::Dictionary>().get(u"key"_ns).isEqual(u"one"_ns));
}

TEST_F(UserDefaults, AnswerTheTypedGettersOfThePlatform) {
    defaults.set(ns::Number::from(true), u"flag"_ns);
    defaults.set(ns::Number::from(2.5), u"number"_ns);
    defaults.set(u"text"_ns, u"text"_ns);
    defaults.set(ns::MutableDictionary::make(), u"map"_ns);
    EXPECT_TRUE((defaults.send<"boolForKey:", bool>(u"flag"_ns)));
    EXPECT_FALSE((defaults.send<"boolForKey:", bool>(u"none"_ns)));
    EXPECT_EQ((defaults.send<"doubleForKey:", double>(u"number"_ns)), 2.5);
    EXPECT_EQ((defaults.send<"integerForKey:", long>(u"number"_ns)), 2);
    EXPECT_TRUE((defaults.send<"stringForKey:", objc::Object>(u"text"_ns)).isEqual(u"text"_ns));
    EXPECT_TRUE((defaults.send<"dictionaryForKey:", objc::Object>(u"map"_ns)));
    EXPECT_FALSE((defaults.send<"dictionaryForKey:", objc::Object>(u"text"_ns)));
    EXPECT_FALSE((defaults.send<"arrayForKey:", objc::Object>(u"none"_ns)));
}

TEST_F(UserDefaults, TakeTheTypedSettersOfThePlatform) {
    defaults.send<"setBool:forKey:">(true, u"flag"_ns);
    defaults.send<"setInteger:forKey:">(7L, u"integer"_ns);
    defaults.send<"setDouble:forKey:">(2.5, u"double"_ns);
    EXPECT_TRUE(defaults.get(u"flag"_ns).as<ns::Number>().boolValue());
    EXPECT_EQ(defaults.get(u"integer"_ns).as<ns::Number>().integerValue(), 7);
    EXPECT_EQ(defaults.get(u"double"_ns).as<ns::Number>().doubleValue(), 2.5);
}

TEST_F(UserDefaults, FallBackOnWhatWasRegistered) {
    const auto fallbacks = ns::MutableDictionary::make();
    fallbacks.set(u"fallback"_ns, u"key"_ns);
    defaults.send<"registerDefaults:">(fallbacks);
    EXPECT_TRUE(defaults.get(u"key"_ns).isEqual(u"fallback"_ns));
    defaults.set(u"own"_ns, u"key"_ns);
    EXPECT_TRUE(defaults.get(u"key"_ns).isEqual(u"own"_ns));
    const auto all = defaults.send<"dictionaryRepresentation", ns::Dictionary>();
    EXPECT_TRUE(all.get(u"key"_ns).isEqual(u"own"_ns));
    defaults.set(nullptr, u"key"_ns);
    EXPECT_TRUE(defaults.get(u"key"_ns).isEqual(u"fallback"_ns));
}

TEST(PropertyListCopy, RefusesWhatIsNone) {
    const objc::Pool pool;
    const auto withNull = ns::MutableArray::make();
    withNull.add(ns::Null::null());
    const auto withNumberKey = ns::MutableDictionary::make();
    withNumberKey.set(u"x"_ns, ns::Number::from(1LL));
    const auto endless = ns::MutableArray::make();
    endless.add(endless);
    for (const objc::Object list :
         {objc::Object(), objc::Object(ns::Null::null()), objc::Object(withNull),
          objc::Object(withNumberKey), objc::Object(endless)}) {
        EXPECT_FALSE(propertyListCopy(list));
    }
    endless.send<"removeAllObjects">();
}

} // namespace
