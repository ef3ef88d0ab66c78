// Timers and delayed messages on the virtual clock.
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/timer.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/foundation/delayed_perform.hpp"
#include "desktop/foundation/timer.hpp"
#include "desktop/runtime/run_loop.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ns::literals;
using desktop::Clock;
using desktop::run_loop::advance;

class Timer : public testing::Test {
protected:
    static void SetUpTestSuite() {
        desktop::foundation::installTimers();
        desktop::foundation::installDelayedPerform();
    }
    void SetUp() override { Clock::shared().setMode(Clock::Mode::virtual_); }
    void TearDown() override { Clock::shared().setMode(Clock::Mode::real); }

    objc::Pool pool;
    /// Gets an element for each firing.
    ns::MutableArray fired = ns::MutableArray::make();
};

TEST_F(Timer, FiresOnceAndIsOver) {
    const auto timer =
        ns::Timer::scheduled(2, fired, objc::selector<"addObject:">(), u"info"_ns, false);
    EXPECT_TRUE(timer.userInfo().isEqual(u"info"_ns));
    advance(1.9);
    EXPECT_EQ(fired.count(), 0U);
    EXPECT_TRUE(timer.isValid());
    advance(10);
    ASSERT_EQ(fired.count(), 1U);
    EXPECT_EQ(fired.first(), timer);
    EXPECT_FALSE(timer.isValid());
}

TEST_F(Timer, RepeatsUntilItIsInvalidated) {
    const auto timer =
        ns::Timer::scheduled(0.5, fired, objc::selector<"addObject:">(), nullptr, true);
    advance(2);
    EXPECT_EQ(fired.count(), 4U);
    timer.fire();
    EXPECT_EQ(fired.count(), 5U);
    timer.invalidate();
    timer.invalidate();
    timer.fire();
    advance(2);
    EXPECT_EQ(fired.count(), 5U);
}

TEST_F(Timer, MayInvalidateItselfFromItsBlock) {
    int calls = 0;
    ns::Timer::scheduled(1, true, objc::Block<void(ns::Timer)>::from([&calls](ns::Timer timer) {
                             if (++calls == 3) {
                                 timer.invalidate();
                             }
                         }));
    advance(60);
    EXPECT_EQ(calls, 3);
}

TEST_F(Timer, LetsGoOfItsTargetWhenItIsOver) {
    const auto owners = [this] { return fired.send<"retainCount", unsigned long>(); };
    const unsigned long before = owners();
    {
        const objc::Pool inner;
        ns::Timer::scheduled(1, fired, objc::selector<"count">(), nullptr, false);
        EXPECT_GT(owners(), before);
        advance(1);
    }
    EXPECT_EQ(owners(), before);
}

TEST_F(Timer, ADelayedMessageKeepsItsPartiesAndCanBeCancelled) {
    const auto after = [this](double seconds, ns::String argument) {
        fired.send<"performSelector:withObject:afterDelay:">(objc::selector<"addObject:">(),
                                                             argument, seconds);
    };
    const unsigned long before = fired.send<"retainCount", unsigned long>();
    after(1, u"one"_ns);
    after(2, u"two"_ns);
    EXPECT_EQ((fired.send<"retainCount", unsigned long>()), before + 2);
    ns::MutableArray::sendClass<"cancelPreviousPerformRequestsWithTarget:selector:object:">(
        fired, objc::selector<"addObject:">(), ns::String::fromUtf8("one"));
    advance(5);
    ASSERT_EQ(fired.count(), 1U);
    EXPECT_TRUE(fired.first().isEqual(u"two"_ns));
    EXPECT_EQ((fired.send<"retainCount", unsigned long>()), before);
}

TEST_F(Timer, ADelayedMessageIsCancelledByItsOwnSelector) {
    for (const SEL selector : {objc::selector<"addObject:">(), objc::selector<"removeObject:">()}) {
        fired.send<"performSelector:withObject:afterDelay:">(selector, u"one"_ns, 1.0);
    }
    ns::MutableArray::sendClass<"cancelPreviousPerformRequestsWithTarget:selector:object:">(
        fired, objc::selector<"removeObject:">(), u"one"_ns);
    advance(2);
    EXPECT_EQ(fired.count(), 1U);
}

} // namespace
