// Changing existing classes: what hooks, exchanges and additions install, and what they refuse.
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "tests/bindings/bell.hpp"

#include <gtest/gtest.h>

namespace {

using objc::Next;
using objc::Object;
using objc::Outcome;
using tests::bell;
using tests::handbell;

int twice(Next<int(int)> next, Object, int times) { return next(2 * times); }
int addTen(Next<int(int)> next, Object, int times) { return next(times) + 10; }
int passOnTimes(Next<int(int)> next, Object, int times) { return next(times); }
int counted(Next<int()> next, Object) { return next() + 1; }
int wrongTypes(Next<int(double)> next, Object, double times) { return next(times); }
int thousandfold(Object, int times) { return 1000 * times; }
bool isLoud(Object) { return true; }
int makers(Object) { return 3; }

using NamedBell = tests::Bell<"TestNamed">;
int addTenToNamed(Next<int(int)> next, NamedBell, int times) { return next(times) + 10; }
bool isNamed(NamedBell) { return true; }

/// Overrides the methods around the one that it inherits.
struct OwnToll : objc::Kind<OwnToll, "TestOwnToll", tests::Bell<"TestFamily">> {};
class OwnTollPeer : public objc::Peer<OwnTollPeer, OwnToll> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"toll:", &OwnTollPeer::toll>(),
                          objc::method<"crack", &OwnTollPeer::crack>()};
    }

private:
    int toll(int times) { return times; }
    void crack() {}
};

class HookTest : public testing::Test {
    objc::Pool pool_;
};

TEST_F(HookTest, ReplacesAndCallsThrough) {
    const auto it = bell<"TestHooked">();
    ASSERT_EQ((objc::install(objc::hook<"TestHooked", "ring:", &twice>())), Outcome::installed);
    EXPECT_EQ(it.ring(3), 6);
}

TEST_F(HookTest, WhatOnlyPassesOnChangesNothing) {
    const auto it = bell<"TestPassedOn">();
    ASSERT_EQ((objc::install(objc::hook<"TestPassedOn", "ring:", &passOnTimes>())),
              Outcome::installed);
    EXPECT_EQ(it.ring(3), 3);
}

TEST_F(HookTest, HooksOfOneMethodNestTheLastFirst) {
    const auto it = bell<"TestNested">();
    ASSERT_EQ((objc::install(objc::hook<"TestNested", "ring:", &twice>())), Outcome::installed);
    ASSERT_EQ((objc::install(objc::hook<"TestNested", "ring:", &addTen>())), Outcome::installed);
    EXPECT_EQ(it.ring(1), 12);
}

TEST_F(HookTest, ARowInstalledTwiceRunsOnce) {
    const auto it = bell<"TestTwice">();
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ((objc::install(objc::hook<"TestTwice", "ring:", &addTen>())), Outcome::installed);
        EXPECT_EQ((objc::install(objc::exchange<"TestTwice", "toll:", "my_toll:", &addTen>())),
                  Outcome::installed);
    }
    EXPECT_EQ(it.ring(1), 11);
    EXPECT_EQ((it.send<"toll:", int>(1)), 110);
    EXPECT_EQ((it.send<"my_toll:", int>(1)), 100);
}

TEST_F(HookTest, AnInheritedMethodIsOverriddenInTheNamedClassOnly) {
    const auto it = handbell<"TestHandbell", "TestParent">();
    ASSERT_EQ((objc::install(objc::hook<"TestHandbell", "ring:", &twice>())), Outcome::installed);
    EXPECT_EQ(it.ring(1), 2);
    EXPECT_EQ(bell<"TestParent">().ring(1), 1);
}

TEST_F(HookTest, SubclassesInUseInheritTheReplacement) {
    bell<"TestFamily">();
    OwnTollPeer::registerClass();
    const auto it = OwnToll::make();
    EXPECT_EQ(it.ring(3), 3);
    ASSERT_EQ((objc::install(objc::hook<"TestFamily", "ring:", &twice>())), Outcome::installed);
    EXPECT_EQ(it.ring(3), 6);
    ASSERT_EQ((objc::install(objc::exchange<"TestFamily", "ring:", "my_ring:", &addTen>())),
              Outcome::installed);
    EXPECT_EQ(it.ring(3), 16);
}

TEST_F(HookTest, AClassMethodIsHookedApartFromTheInstances) {
    using It = tests::Bell<"TestCounted">;
    bell<"TestCounted">();
    ASSERT_EQ((objc::install(objc::classHook<"TestCounted", "count", &counted>())),
              Outcome::installed);
    EXPECT_EQ((It::sendClass<"count", int>()), 2);
    EXPECT_EQ((objc::install(objc::hook<"TestCounted", "count", &counted>())),
              Outcome::methodMissing);
}

TEST_F(HookTest, AnExchangePublishesTheFormerMethodUnderTheOtherSelector) {
    const auto it = bell<"TestExchanged">();
    ASSERT_EQ((objc::install(objc::exchange<"TestExchanged", "ring:", "my_ring:", &addTen>())),
              Outcome::installed);
    EXPECT_EQ(it.ring(1), 11);
    EXPECT_EQ((it.send<"my_ring:", int>(1)), 1);
}

TEST_F(HookTest, AnExchangeLeavesAnInheritedMethodToTheSuperclass) {
    const auto it = handbell<"TestHandExchanged", "TestHandParent">();
    ASSERT_EQ((objc::install(objc::exchange<"TestHandExchanged", "ring:", "my_ring:", &twice>())),
              Outcome::installed);
    EXPECT_EQ(it.ring(1), 2);
    EXPECT_EQ((it.send<"my_ring:", int>(1)), 1);
    EXPECT_EQ(bell<"TestHandParent">().ring(1), 1);
}

TEST_F(HookTest, ExchangesOfASuperclassAndOfWhatInheritsFromItNest) {
    const auto it = handbell<"TestHandBoth", "TestBoth">();
    ASSERT_EQ((objc::install(objc::exchange<"TestBoth", "ring:", "my_ring:", &addTen>())),
              Outcome::installed);
    ASSERT_EQ((objc::install(objc::exchange<"TestHandBoth", "ring:", "my_ring:", &twice>())),
              Outcome::installed);
    EXPECT_EQ(it.ring(1), 12);
    EXPECT_EQ(bell<"TestBoth">().ring(1), 11);
}

TEST_F(HookTest, AnExchangeLivesWithAForeignMethodUnderItsSecondSelector) {
    const auto it = bell<"TestTaken">();
    ASSERT_EQ((objc::install(objc::addition<"TestTaken", "my_ring:", &thousandfold>())),
              Outcome::installed);
    testing::internal::CaptureStderr();
    EXPECT_EQ((objc::install(objc::exchange<"TestTaken", "ring:", "my_ring:", &addTen>())),
              Outcome::selectorTaken);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("TestTaken ring:"), std::string::npos);
    EXPECT_EQ(it.ring(1), 11);
    EXPECT_EQ((it.send<"my_ring:", int>(1)), 1000);
}

TEST_F(HookTest, AnAdditionFillsWhatIsOpenAndSaysWhenItIsNot) {
    const auto it = bell<"TestAdded">();
    EXPECT_EQ((objc::install(objc::addition<"TestAdded", "isLoud", &isLoud>())),
              Outcome::installed);
    EXPECT_TRUE((it.send<"isLoud", bool>()));
    EXPECT_EQ((objc::install(objc::classAddition<"TestAdded", "makers", &makers>())),
              Outcome::installed);
    EXPECT_EQ((tests::Bell<"TestAdded">::sendClass<"makers", int>()), 3);

    testing::internal::CaptureStderr();
    EXPECT_EQ((objc::install(objc::addition<"TestAdded", "ring:", &thousandfold>())),
              Outcome::methodPresent);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("TestAdded ring:"), std::string::npos);
    EXPECT_EQ(it.ring(1), 1);
}

TEST_F(HookTest, WhatCannotBeInstalledSaysWhy) {
    const auto it = bell<"TestRefusing">();
    EXPECT_EQ((objc::install(objc::hook<"TestGong", "ring:", &twice>())), Outcome::classMissing);
    EXPECT_EQ((objc::install(objc::hook<"TestRefusing", "jingle:", &twice>())),
              Outcome::methodMissing);
    EXPECT_EQ((objc::install(objc::hook<"TestRefusing", "ring:", &wrongTypes>())),
              Outcome::typesDiffer);
    EXPECT_EQ((objc::install(objc::exchange<"TestRefusing", "jingle:", "my_jingle:", &twice>())),
              Outcome::nothingToExchange);
    EXPECT_FALSE(it.respondsToSelector(sel_registerName("my_jingle:")));
    EXPECT_EQ((objc::classHook<"TestRefusing", "count", &counted>().description()),
              "+TestRefusing count");
}

TEST_F(HookTest, AMissingMethodIsNewsUnlessNoPhoneNeedHaveIt) {
    bell<"TestQuiet">();
    testing::internal::CaptureStderr();
    EXPECT_EQ((objc::install(objc::whereThereIsOne(objc::hook<"TestQuiet", "jingle:", &twice>()))),
              Outcome::methodMissing);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    testing::internal::CaptureStderr();
    objc::install(objc::hook<"TestQuiet", "jingle:", &twice>());
    EXPECT_NE(testing::internal::GetCapturedStderr().find("TestQuiet jingle:"), std::string::npos);
}

TEST_F(HookTest, SwizzledMethodsTradePlacesInTheirClassOnly) {
    const auto it = handbell<"TestSwizzled", "TestSwizzledParent">();
    const Class cls = tests::Handbell<"TestSwizzled", "TestSwizzledParent">::classObject();
    const SEL ring = sel_registerName("ring:");
    const SEL toll = sel_registerName("toll:");
    ASSERT_EQ(objc::swizzle(cls, ring, toll), Outcome::installed);
    EXPECT_EQ(it.ring(1), 100);
    EXPECT_EQ((it.send<"toll:", int>(1)), 1);
    EXPECT_EQ(bell<"TestSwizzledParent">().ring(1), 1);
    ASSERT_EQ(objc::swizzle(cls, ring, toll), Outcome::installed)
        << "the class has them itself now";
    EXPECT_EQ(it.ring(1), 1);
    EXPECT_EQ((it.send<"toll:", int>(1)), 100);
}

TEST_F(HookTest, TakesTheClassFromTheReceiverWhereTheRowNamesNone) {
    const auto it = bell<"TestNamed">();
    ASSERT_EQ((objc::install(objc::hook<"ring:", &addTenToNamed>())), Outcome::installed);
    ASSERT_EQ((objc::install(objc::exchange<"toll:", "named_toll:", &addTenToNamed>())),
              Outcome::installed);
    ASSERT_EQ((objc::install(objc::addition<"isNamed", &isNamed>())), Outcome::installed);
    EXPECT_EQ(it.ring(1), 11);
    EXPECT_EQ((it.send<"toll:", int>(1)), 110);
    EXPECT_EQ((it.send<"named_toll:", int>(1)), 100);
    EXPECT_TRUE((it.send<"isNamed", bool>()));
}

TEST_F(HookTest, SwizzlingRefusesWhatWouldDoHarm) {
    const auto it = bell<"TestUnswizzled">();
    const Class cls = tests::Bell<"TestUnswizzled">::classObject();
    const SEL ring = sel_registerName("ring:");
    EXPECT_EQ(objc::swizzle(cls, ring, sel_registerName("jingle:")), Outcome::methodMissing);
    EXPECT_EQ(objc::swizzle(cls, sel_registerName("jingle:"), ring), Outcome::methodMissing);
    EXPECT_EQ(objc::swizzle(cls, ring, nullptr), Outcome::methodMissing);
    EXPECT_EQ(objc::swizzle(nullptr, ring, ring), Outcome::methodMissing);
    EXPECT_EQ(objc::swizzle(cls, ring, sel_registerName("pitch")), Outcome::typesDiffer);
    EXPECT_EQ(it.ring(1), 1);
}

} // namespace
