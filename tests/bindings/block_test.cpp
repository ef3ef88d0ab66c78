// Blocks: made from lambdas, kept by the platform, called from both sides.
#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

using namespace ns::literals;

TEST(Block, CallsTheLambdaWithItsTypes) {
    const objc::Pool pool;
    const auto block = objc::Block<double(bool, int)>::from(
        [](bool add, int value) { return add ? value + 0.5 : 0.0; });
    EXPECT_EQ(block(true, 2), 2.5);
    EXPECT_EQ(block(false, 2), 0.0);
}

TEST(Block, KeepsWhatItCapturesAsLongAsAnyoneHoldsIt) {
    auto captured = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = captured;
    objc::Strong<objc::Block<int()>> held;
    {
        const objc::Pool pool;
        held = objc::Block<int()>::from([captured] { return *captured; });
        const auto array = ns::MutableArray::make();
        array.add(held);
        const auto copy = objc::Copied<objc::Object>(held);
        EXPECT_EQ(copy, static_cast<objc::Object>(held)) << "a heap block is copied by retaining";
    }
    captured.reset();
    ASSERT_FALSE(watched.expired());
    EXPECT_EQ(held(), 1);
    held = nullptr;
    EXPECT_TRUE(watched.expired());
}

TEST(Block, IsCalledByFoundation) {
    const objc::Pool pool;
    int calls = 0;
    ns::NotificationCenter::defaultCenter().addObserverForName(
        u"TestNotification"_ns, nullptr, nullptr,
        objc::Block<void(ns::Notification)>::from([&calls](ns::Notification notification) {
            calls += notification.name().isEqualToString(u"TestNotification"_ns) ? 1 : 100;
        }));
    ns::NotificationCenter::defaultCenter().post(u"TestNotification"_ns, nullptr);
    EXPECT_EQ(calls, 1);
}

TEST(Block, TakesAndReturnsStructuresAndObjects) {
    const objc::Pool pool;
    const auto block =
        objc::Block<CGRect(ns::String, CGPoint)>::from([](ns::String text, CGPoint origin) {
            return CGRect{origin, {static_cast<double>(text.length()), 1}};
        });
    EXPECT_EQ(block(u"钟"_ns, {2, 3}), (CGRect{{2, 3}, {1, 1}}));
}

TEST(Block, IsNilUntilThereIsOne) {
    const objc::Block<void()> none;
    EXPECT_FALSE(none);
    EXPECT_EQ(objc::encodingOf<objc::Block<void()>>().view(), "@?");
}

TEST(Block, ContainsWhatItsLambdaThrows) {
    const objc::Pool pool;
    const auto block =
        objc::Block<int()>::from([]() -> int { throw std::runtime_error("inside"); });
    EXPECT_EQ(block(), 0);
}

TEST(BlockOnTheStack, IsAnObjectLikeAnyOther) {
    const objc::Pool pool;
    const auto value = std::make_shared<int>(3);
    const auto body = [value] { return *value; };
    using Literal = objc::detail::BlockLiteral<std::remove_const_t<decltype(body)>, int()>;
    const objc::detail::BlockDescriptor descriptor{0, sizeof(Literal), &Literal::copy,
                                                   &Literal::dispose, Literal::signature.data()};
    const Literal onStack{{static_cast<void*>(_NSConcreteStackBlock),
                           objc::detail::blockHasCopyDispose | objc::detail::blockHasSignature, 0,
                           reinterpret_cast<void (*)()>(&Literal::invoke), &descriptor},
                          body};
    const auto block =
        objc::wrap<objc::Block<int()>>(reinterpret_cast<id>(const_cast<Literal*>(&onStack)));
    EXPECT_EQ((block.send<"retain", objc::Object>()), static_cast<objc::Object>(block));
    block.send<"release">();
    EXPECT_TRUE((block.send<"isKindOfClass:", bool>(objc_getClass("NSBlock"))));
    EXPECT_TRUE(block.respondsToSelector(objc::selector<"copy">()));
    objc::Copied<objc::Block<int()>> kept(block);
    EXPECT_NE(static_cast<objc::Object>(kept), static_cast<objc::Object>(block));
    EXPECT_EQ(value.use_count(), 4) << "here, in the body, on the stack and in the copy";
    EXPECT_EQ(kept(), 3);
    kept = nullptr;
    EXPECT_EQ(value.use_count(), 3);
}

TEST(BlockOnTheStack, MayBeNone) {
    EXPECT_EQ(_Block_copy(nullptr), nullptr);
    const objc::Copied<objc::Block<void()>> kept{objc::Block<void()>()};
    EXPECT_FALSE(kept);
}

} // namespace
