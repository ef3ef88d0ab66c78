// What the host gets when a replacement or the method that it replaces throws.
#include "bindings/foundation/notification_center.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "tests/bindings/bell.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

using namespace ns::literals;
using objc::Next;
using objc::Object;
using tests::bell;

template <class R>
R failBefore(Next<R()>, Object) {
    throw std::runtime_error("before");
}
template <class R>
R failAfter(Next<R()> next, Object) {
    next();
    throw std::runtime_error("after");
}
int failAfterTwo(Next<int(int)> next, Object, int times) {
    next(times);
    next(2 * times);
    throw std::runtime_error("after two");
}
void passOn(Next<void()> next, Object) { next(); }
int failing(Object) { throw std::runtime_error("added"); }

class FailingReplacementTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        const objc::Pool pool;
        ns::NotificationCenter::defaultCenter().addObserverForName(
            u"WentraExceptionSwallowed"_ns, nullptr, nullptr,
            objc::Block<void(ns::Notification)>::from([](ns::Notification notification) {
                swallowed.push_back(detail(notification, u"where"_ns));
                reasons.push_back(detail(notification, u"name"_ns) + ": " +
                                  detail(notification, u"reason"_ns));
            }));
    }
    static std::string detail(ns::Notification notification, ns::String key) {
        const auto text = notification.userInfo().get(key).as<ns::String>();
        return text ? text.utf8() : "nil";
    }
    void SetUp() override {
        swallowed.clear();
        reasons.clear();
    }
    static inline std::vector<std::string> swallowed;
    static inline std::vector<std::string> reasons; ///< "name: reason" of each
    objc::Pool pool_;
};

TEST_F(FailingReplacementTest, TheHostGetsWhatTheFormerMethodAnswered) {
    const auto it = bell<"TestFailing">();
    objc::install(objc::hook<"TestFailing", "pitch", &failAfter<double>>());
    EXPECT_EQ((it.send<"pitch", double>()), 1.5);
    objc::install(objc::hook<"TestFailing", "isHeard", &failAfter<bool>>());
    EXPECT_TRUE((it.send<"isHeard", bool>()));
    objc::install(objc::hook<"TestFailing", "tone", &failAfter<ns::String>>());
    EXPECT_EQ((it.send<"tone", ns::String>().utf8()), "钟");
    objc::install(objc::hook<"TestFailing", "place", &failAfter<CGPoint>>());
    EXPECT_EQ((it.send<"place", CGPoint>()), (CGPoint{1, 2}));
    objc::install(objc::hook<"TestFailing", "swing", &failAfter<CGAffineTransform>>());
    EXPECT_EQ((it.send<"swing", CGAffineTransform>()), (CGAffineTransform{1, 2, 3, 4, 5, 6}));
    objc::install(objc::classHook<"TestFailing", "count", &failAfter<int>>());
    EXPECT_EQ((tests::Bell<"TestFailing">::sendClass<"count", int>()), 1);
    EXPECT_EQ(swallowed, (std::vector<std::string>{"TestFailing pitch", "TestFailing isHeard",
                                                   "TestFailing tone", "TestFailing place",
                                                   "TestFailing swing", "TestFailing count"}));
}

TEST_F(FailingReplacementTest, TheFormerMethodRunsOnceWhenTheReplacementHasNotCalledIt) {
    const auto it = bell<"TestFailingEarly">();
    objc::install(objc::hook<"TestFailingEarly", "swing", &failBefore<CGAffineTransform>>());
    EXPECT_EQ((it.send<"swing", CGAffineTransform>()), (CGAffineTransform{1, 2, 3, 4, 5, 6}));
    tests::BellPeer<"TestFailingEarly">::calls = 0;
    objc::install(objc::hook<"TestFailingEarly", "stop", &failBefore<void>>());
    it.send<"stop">();
    EXPECT_EQ(tests::BellPeer<"TestFailingEarly">::calls, 1);
}

TEST_F(FailingReplacementTest, TheFormerMethodDoesNotRunAgain) {
    const auto it = bell<"TestFailingLate">();
    tests::BellPeer<"TestFailingLate">::calls = 0;
    objc::install(objc::hook<"TestFailingLate", "stop", &failAfter<void>>());
    it.send<"stop">();
    EXPECT_EQ(tests::BellPeer<"TestFailingLate">::calls, 1);
    objc::install(objc::hook<"TestFailingLate", "ring:", &failAfterTwo>());
    EXPECT_EQ(it.ring(3), 6) << "the host gets the last answer";
    EXPECT_EQ(tests::BellPeer<"TestFailingLate">::calls, 3);
}

TEST_F(FailingReplacementTest, AnExchangedMethodFailsTheSameWay) {
    const auto it = bell<"TestFailingExchanged">();
    objc::install(
        objc::exchange<"TestFailingExchanged", "pitch", "my_pitch", &failAfter<double>>());
    EXPECT_EQ((it.send<"pitch", double>()), 1.5);
    EXPECT_EQ(swallowed, std::vector<std::string>{"TestFailingExchanged pitch"});
    EXPECT_EQ(reasons, std::vector<std::string>{"std::exception: after"});
}

TEST_F(FailingReplacementTest, TheHostsOwnExceptionPassesThrough) {
    const auto it = bell<"TestCracked">();
    objc::install(objc::hook<"TestCracked", "crack", &passOn>());
    EXPECT_ANY_THROW(it.send<"crack">());
    EXPECT_TRUE(swallowed.empty());
}

TEST_F(FailingReplacementTest, AFailingAdditionAnswersZero) {
    const auto it = bell<"TestFailingAdded">();
    objc::install(objc::addition<"TestFailingAdded", "weight", &failing>());
    EXPECT_EQ((it.send<"weight", int>()), 0);
    EXPECT_EQ(swallowed, std::vector<std::string>{"weight"});
}

} // namespace
