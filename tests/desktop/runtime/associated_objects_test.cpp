// Associated objects: how long values live, by their policies.
#include "bindings/foundation/string.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace ns::literals;
using objc::Association;

objc::Object makeThing() {
    return objc::send<"new", objc::Object>(objc::object(objc::Object::classObject()))
        .send<"autorelease", objc::Object>();
}

/// An object whose end can be seen: a block that holds the only reference to `*life`.
objc::Object mortal(std::weak_ptr<int>& life) {
    auto held = std::make_shared<int>(0);
    life = held;
    return objc::Block<void()>::from([held] {});
}

TEST(AssociatedObjects, RetainedValuesDieWithTheirOwner) {
    const objc::Pool pool;
    std::weak_ptr<int> life;
    {
        objc::Strong<objc::Object> owner;
        {
            const objc::Pool inner;
            owner = makeThing();
            objc::associate<"key">(owner, mortal(life), Association::retainNonatomic);
        }
        EXPECT_FALSE(life.expired());
        EXPECT_TRUE(objc::associated<"key">(owner));
        EXPECT_FALSE(objc::associated<"otherKey">(owner));
    }
    EXPECT_TRUE(life.expired());
}

TEST(AssociatedObjects, ReplacedAndRemovedValuesAreReleased) {
    const objc::Pool pool;
    const auto owner = makeThing();
    std::weak_ptr<int> first;
    std::weak_ptr<int> second;
    {
        const objc::Pool inner;
        objc::associate<"key">(owner, mortal(first), Association::retainNonatomic);
        objc::associate<"key">(owner, mortal(second), Association::retainNonatomic);
    }
    EXPECT_TRUE(first.expired());
    EXPECT_FALSE(second.expired());
    objc::associate<"key">(owner, nullptr, Association::retainNonatomic);
    EXPECT_TRUE(second.expired());
    EXPECT_FALSE(objc::associated<"key">(owner));
}

TEST(AssociatedObjects, AssignedValuesAreNotOwnedAndCopiedOnesAreCopies) {
    const objc::Pool pool;
    const auto owner = makeThing();
    std::weak_ptr<int> life;
    {
        const objc::Pool inner;
        objc::associate<"assigned">(owner, mortal(life), Association::assign);
    }
    EXPECT_TRUE(life.expired());

    const auto text = objc::wrap<ns::String>(
        objc::send<"string", id>(objc::object(objc_getClass("NSMutableString"))));
    objc::associate<"copied">(owner, text, Association::copyNonatomic);
    text.send<"appendString:">(u"later"_ns);
    EXPECT_EQ((objc::associated<"copied", ns::String>(owner).utf8()), "");
}

} // namespace
