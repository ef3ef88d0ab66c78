// Changing existing classes: hooks, exchanges, additions, and what happens when they fail.
#include "bindings/foundation/notification_center.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace ns::literals;

struct BellKind : objc::Kind<BellKind, "TestBell"> {
    using Kind::Kind;
    [[nodiscard]] int ring(int times) const { return send<"ring:", int>(times); }
};

class Bell : public objc::Peer<Bell, BellKind, objc::Boundary::propagates> {
public:
    static auto methods() {
        return std::array{
            objc::method<"ring:", &Bell::ring>(), objc::method<"chime:", &Bell::ring>(),
            objc::method<"toll:", &Bell::ring>(), objc::method<"crack:", &Bell::crack>(),
            objc::method<"peal:", &Bell::ring>(), objc::classMethod<"count", &Bell::count>(),
        };
    }
    static inline int rings = 0;

private:
    int ring(int times) {
        ++rings;
        return times;
    }
    int crack(int) {
        ns::Exception::with(u"Cracked"_ns, u"by the host"_ns).raise();
        return 0;
    }
    static int count(Class) { return 1; }
};

struct HandbellKind : objc::Kind<HandbellKind, "TestHandbell", BellKind> {};
class Handbell : public objc::Peer<Handbell, HandbellKind> {
public:
    static std::array<objc::MethodRow, 0> methods() { return {}; }
};

int twice(objc::Next<int(int)> next, BellKind, int times) { return next(2 * times); }
int failBefore(objc::Next<int(int)>, BellKind, int) { throw std::runtime_error("before"); }
int failAfter(objc::Next<int(int)> next, BellKind, int times) {
    next(times);
    throw std::runtime_error("after");
}
int passOn(objc::Next<int(int)> next, BellKind, int times) { return next(times); }
int addTen(objc::Next<int(int)> next, BellKind, int times) { return next(times) + 10; }
int counted(objc::Next<int()> next, objc::Object) { return next() + 1; }
int wrongTypes(objc::Next<int(double)> next, BellKind, double times) { return next(times); }
bool isLoud(BellKind bell) { return bell.ring(1) > 1; }

class HookTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        Bell::registerClass();
        Handbell::registerClass();
    }
    objc::Pool pool_;
};

TEST_F(HookTest, ReplacesAndCallsThrough) {
    ASSERT_EQ((objc::hook<"TestBell", "ring:", &twice>().install()), objc::Outcome::installed);
    EXPECT_EQ(BellKind::make().ring(3), 6);
}

TEST_F(HookTest, HooksOfOneMethodNestTheLastFirst) {
    ASSERT_EQ((objc::hook<"TestBell", "toll:", &twice>().install()), objc::Outcome::installed);
    ASSERT_EQ((objc::hook<"TestBell", "toll:", &addTen>().install()), objc::Outcome::installed);
    EXPECT_EQ((BellKind::make().send<"toll:", int>(1)), 12);
}

TEST_F(HookTest, AnInheritedMethodIsOverriddenInTheNamedClassOnly) {
    ASSERT_EQ((objc::hook<"TestHandbell", "peal:", &twice>().install()), objc::Outcome::installed);
    EXPECT_EQ((HandbellKind::make().send<"peal:", int>(1)), 2);
    EXPECT_EQ((BellKind::make().send<"peal:", int>(1)), 1);
}

TEST_F(HookTest, ExchangeMakesTheFormerMethodAnswerTheOtherSelector) {
    ASSERT_EQ((objc::exchange<"TestHandbell", "chime:", "my_chime:", &twice>().install()),
              objc::Outcome::installed);
    EXPECT_EQ((HandbellKind::make().send<"chime:", int>(1)), 2);
    EXPECT_EQ((HandbellKind::make().send<"my_chime:", int>(1)), 1);
    EXPECT_EQ((BellKind::make().send<"chime:", int>(1)), 1) << "the superclass changed";

    ASSERT_EQ((objc::exchange<"TestBell", "chime:", "my_chime:", &addTen>().install()),
              objc::Outcome::installed);
    EXPECT_EQ((BellKind::make().send<"chime:", int>(1)), 11);
    EXPECT_EQ((BellKind::make().send<"my_chime:", int>(1)), 1);
}

TEST_F(HookTest, ClassMethodsAndAdditions) {
    ASSERT_EQ((objc::classHook<"TestBell", "count", &counted>().install()),
              objc::Outcome::installed);
    EXPECT_EQ((BellKind::sendClass<"count", int>()), 2);
    EXPECT_EQ((objc::addition<"TestBell", "isLoud", &isLoud>().install()),
              objc::Outcome::installed);
    EXPECT_EQ((objc::addition<"TestBell", "isLoud", &isLoud>().install()),
              objc::Outcome::methodPresent);
}

TEST_F(HookTest, WhatCannotBeInstalledSaysWhy) {
    EXPECT_EQ((objc::hook<"TestGong", "ring:", &twice>().install()), objc::Outcome::classMissing);
    EXPECT_EQ((objc::hook<"TestBell", "jingle:", &twice>().install()),
              objc::Outcome::methodMissing);
    EXPECT_EQ((objc::hook<"TestBell", "ring:", &wrongTypes>().install()),
              objc::Outcome::typesDiffer);
    EXPECT_EQ((objc::exchange<"TestBell", "jingle:", "my_jingle:", &twice>().install()),
              objc::Outcome::nothingToExchange);
    EXPECT_FALSE(BellKind::make().respondsToSelector(sel_registerName("my_jingle:")));
    EXPECT_EQ((objc::classHook<"TestBell", "count", &counted>().description()), "+TestBell count");
}

/// Runs `body` and returns the places that reported a swallowed exception meanwhile.
template <class Body>
std::vector<std::string> swallowed(Body body) {
    static std::vector<std::string> places;
    static const bool observing = [] {
        ns::NotificationCenter::defaultCenter().observe(
            u"WentraExceptionSwallowed"_ns, nullptr, nullptr,
            objc::Block<void(ns::Notification)>::from([](ns::Notification notification) {
                places.push_back(
                    notification.userInfo().get(u"where"_ns).assume<ns::String>().utf8());
            }));
        return true;
    }();
    places.clear();
    body();
    return observing ? places : std::vector<std::string>();
}

struct SirenKind : objc::Kind<SirenKind, "TestSiren", BellKind> {};
class Siren : public objc::Peer<Siren, SirenKind> {
public:
    static std::array<objc::MethodRow, 0> methods() { return {}; }
};

TEST_F(HookTest, AFailingReplacementLeavesTheHostWhatItWouldHaveHad) {
    Siren::registerClass();
    objc::hook<"TestSiren", "peal:", &failBefore>().install();
    objc::hook<"TestSiren", "ring:", &failAfter>().install();
    Bell::rings = 0;
    EXPECT_EQ(swallowed([] {
                  EXPECT_EQ((SirenKind::make().send<"peal:", int>(5)), 5)
                      << "the former method was not called";
              }),
              std::vector<std::string>{"TestSiren peal:"});
    EXPECT_EQ(Bell::rings, 1);
    EXPECT_EQ(swallowed([] { SirenKind::make().send<"ring:", int>(5); }),
              std::vector<std::string>{"TestSiren ring:"});
    EXPECT_EQ(Bell::rings, 2) << "the former method was called twice or not at all";
}

TEST_F(HookTest, TheHostsOwnExceptionPassesThrough) {
    objc::hook<"TestBell", "crack:", &passOn>().install();
    EXPECT_TRUE(
        swallowed([] { EXPECT_ANY_THROW((BellKind::make().send<"crack:", int>(1))); }).empty());
}

} // namespace
