// Weak references: nil from the beginning of the object's end on, on whatever thread.
#include "bindings/foundation/data.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/associated.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/objc/weak.hpp"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

namespace {

using namespace ns::literals;
using objc::Strong;
using objc::Weak;

struct MortalKind : objc::Kind<MortalKind, "WeakTestMortal"> {};

/// Looks at a weak reference to itself while it dies.
class Mortal : public objc::Peer<Mortal, MortalKind> {
public:
    static auto methods() { return std::array{objc::property<"friend", &Mortal::friend_>()}; }
    ~Mortal() {
        if (seen_ != nullptr) {
            *seen_ = seenFrom_->strong() == self() ? 1 : 0; // it may know another one by now
        }
    }
    void watch(const Weak<MortalKind>& from, std::atomic<int>& seen) {
        seenFrom_ = &from;
        seen_ = &seen;
    }

private:
    Weak<MortalKind> friend_;
    const Weak<MortalKind>* seenFrom_ = nullptr;
    std::atomic<int>* seen_ = nullptr;
};

class WeakReferences : public testing::Test {
protected:
    static void SetUpTestSuite() { Mortal::registerClass(); }
    static Strong<MortalKind> make() {
        const objc::Pool pool;
        return Strong<MortalKind>(MortalKind::make());
    }
    const objc::Pool pool_;
};

TEST_F(WeakReferences, KnowTheirObjectUntilItDies) {
    Strong<MortalKind> object = make();
    const Weak<MortalKind> known(object);
    EXPECT_TRUE(known.strong() == object);
    object = nullptr;
    EXPECT_FALSE(known);
    EXPECT_FALSE(known.strong());
}

TEST_F(WeakReferences, AreNilFromTheBeginningOfTheEndOn) {
    std::atomic<int> seen = -1;
    Weak<MortalKind> known;
    {
        Strong<MortalKind> object = make();
        known = object;
        Mortal::of(object).watch(known, seen);
    }
    EXPECT_EQ(seen, 0) << "the dying object was handed out";
}

TEST_F(WeakReferences, FollowAssignmentsAndCopies) {
    Strong<MortalKind> first = make();
    const Strong<MortalKind> other = make();
    Weak<MortalKind> known(first);
    const Weak<MortalKind> copy(known);
    known = other;
    EXPECT_TRUE(known.strong() == other);
    EXPECT_TRUE(copy.strong() == first);
    first = nullptr;
    EXPECT_TRUE(known.strong() == other) << "a former object's end is of no concern";
    EXPECT_FALSE(copy);
}

TEST_F(WeakReferences, MayGoBeforeTheirObject) {
    const Strong<MortalKind> object = make();
    std::vector<Weak<MortalKind>> many;
    for (int count = 0; count < 100; ++count) {
        many.emplace_back(object); // growing moves them about
    }
    many.erase(many.begin(), many.begin() + 50);
    EXPECT_TRUE(many.front().strong() == object);
}

TEST_F(WeakReferences, KeepWhatTheyHandOut) {
    Strong<MortalKind> object = make();
    const Weak<MortalKind> known(object);
    {
        const Strong<MortalKind> kept = known.strong();
        object = nullptr;
        EXPECT_TRUE(known);
    }
    EXPECT_FALSE(known);
}

TEST_F(WeakReferences, AreProperties) {
    const Strong<MortalKind> owner = make();
    {
        const objc::Pool inner;
        const Strong<MortalKind> other = make();
        owner.send<"setFriend:">(other.raw());
        EXPECT_TRUE((owner.send<"friend", objc::Object>()) == other);
    }
    EXPECT_FALSE((owner.send<"friend", objc::Object>()));
}

TEST_F(WeakReferences, GoTogetherWithAssociatedValues) {
    Strong<MortalKind> owner = make();
    Strong<MortalKind> value = make();
    const Weak<MortalKind> ofOwner(owner);
    const Weak<MortalKind> ofValue(value);
    objc::associate<"value">(owner, value, objc::Association::retainNonatomic);
    value = nullptr;
    EXPECT_TRUE(ofValue);
    owner = nullptr;
    EXPECT_FALSE(ofOwner);
    EXPECT_FALSE(ofValue);
}

TEST_F(WeakReferences, TakeObjectsThatAreNeverCounted) {
    const Weak<ns::String> constant(u"constant"_ns);
    EXPECT_TRUE(constant);
    const Weak<objc::Object> cls(objc::wrap(objc::object(MortalKind::classObject())));
    EXPECT_TRUE(cls);
}

TEST_F(WeakReferences, KnowOfTheEndOfFoundationsCollections) {
    struct Collection {
        const char* cls;
        const char* maker;
    };
    for (const auto& [cls, maker] :
         {Collection{"NSArray", "arrayWithObject:"},
          Collection{"NSMutableArray", "arrayWithObject:"}, Collection{"NSSet", "setWithObject:"},
          Collection{"NSMutableSet", "setWithObject:"},
          Collection{"NSCountedSet", "setWithObject:"},
          Collection{"NSDictionary", "dictionaryWithObject:forKey:"},
          Collection{"NSMutableDictionary", "dictionaryWithObject:forKey:"}}) {
        Weak<objc::Object> reference;
        {
            const objc::Pool pool;
            // One argument more than a method takes does no harm.
            reference = objc::sendTo<objc::Object>(objc::object(objc_getClass(cls)),
                                                   sel_registerName(maker), u"a"_ns, u"b"_ns);
            EXPECT_TRUE(reference) << cls;
        }
        EXPECT_FALSE(reference) << cls;
    }
}

TEST_F(WeakReferences, KnowOfTheEndOfClassesThatWereInUseBefore) {
    Weak<objc::Object> reference;
    {
        const objc::Pool pool;
        reference = ns::Data::fromBase64(u"AAAA"_ns);
        EXPECT_TRUE(reference);
    }
    EXPECT_FALSE(reference);
}

TEST_F(WeakReferences, NeverBringAnObjectBackOnAnotherThread) {
    constexpr int rounds = 2000;
    std::atomic<int> round = 0;
    std::atomic<int> seen = -1;
    Weak<MortalKind> known;
    std::thread reader([&] {
        const objc::Pool pool;
        while (round < rounds) {
            const Strong<MortalKind> kept = known.strong();
        }
    });
    for (; round < rounds; ++round) {
        Strong<MortalKind> object = make();
        Mortal::of(object).watch(known, seen);
        known = object;
        object = nullptr;
        EXPECT_NE(seen, 1);
    }
    reader.join();
}

} // namespace
