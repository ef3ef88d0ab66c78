// Classes written in C++: life, properties, inheritance, exceptions.
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/class_list.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/uikit/view.hpp"
#include "desktop/runtime/properties.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace {

using namespace ns::literals;

std::vector<std::string> lives;

struct Animal : objc::Kind<Animal, "TestAnimal"> {
    using Kind::Kind;
    [[nodiscard]] ns::String name() const { return send<"name", ns::String>(); }
    void setName(ns::String name) const { send<"setName:">(name); }
    [[nodiscard]] int legs() const { return send<"legs", int>(); }
    [[nodiscard]] bool isTame() const { return send<"isTame", bool>(); }
    void setTame(bool tame) const { send<"setTame:">(tame); }
};

class AnimalPeer : public objc::Peer<AnimalPeer, Animal, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"name", &AnimalPeer::name_, &AnimalPeer::renamed>(),
            objc::flag<"tame", &AnimalPeer::tame_>(),
            objc::method<"legs", &AnimalPeer::legs>(),
            objc::method<"raise", &AnimalPeer::raise>(),
            objc::classMethod<"kingdom", &AnimalPeer::kingdom>(),
        };
    }
    AnimalPeer() { lives.emplace_back("animal born"); }
    ~AnimalPeer() { lives.emplace_back("animal died"); }
    int renamings = 0;

private:
    void renamed() { ++renamings; }
    [[nodiscard]] int legs() const { return 4; }
    void raise() { ns::Exception::with(u"Roar"_ns, u"from the animal"_ns).raise(); }
    static ns::String kingdom(Class) { return u"动物"_ns; }

    objc::Copied<ns::String> name_;
    bool tame_ = false;
};

std::vector<Class> initialised;

struct Dog : objc::Kind<Dog, "TestDog"> {};

/// Plays the platform.
class DogPeer : public objc::Peer<DogPeer, Dog, objc::Boundary::propagates, objc::Methods::atOnce> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"initialize", &DogPeer::initialiseClass>(),
            objc::method<"bark", &DogPeer::bark>(),
        };
    }

private:
    static void initialiseClass(Class cls) { initialised.push_back(cls); }
    void bark() {}
};

struct Puppy : objc::Kind<Puppy, "TestPuppy", Dog> {
    using Kind::Kind;
};

class PuppyPeer : public objc::Peer<PuppyPeer, Puppy> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"sound", &PuppyPeer::sound>(),
            objc::method<"play", &PuppyPeer::play>(),
        };
    }

private:
    static ns::String sound(Class) { return u"汪"_ns; }
    int play() { return ++plays_; }
    int plays_ = 0;
};

struct Bird : objc::Kind<Bird, "TestBird", Animal> {};

class BirdPeer : public objc::Peer<BirdPeer, Bird> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"legs", &BirdPeer::legs>(),
                          objc::method<"fall:", &BirdPeer::fall>(),
                          objc::property<"song", &BirdPeer::song_, &BirdPeer::learn>()};
    }
    BirdPeer() { lives.emplace_back("bird born"); }
    ~BirdPeer() { lives.emplace_back("bird died"); }
    int feathers = 0;

private:
    [[nodiscard]] int legs() const { return super<"legs", int>() - 2; }
    int fall(int) { throw std::runtime_error("no wings"); }
    void learn() { throw std::runtime_error("too long"); }
    objc::Strong<ns::String> song_;
};

class PeerTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        AnimalPeer::registerClass();
        DogPeer::registerClass();
        BirdPeer::registerClass();
    }
    void SetUp() override { lives.clear(); }
    objc::Pool pool_;
};

TEST_F(PeerTest, PeersLiveAndDieWithTheirObjectSuperclassFirst) {
    {
        const objc::Pool inner;
        const auto bird = Bird::make();
        EXPECT_EQ(BirdPeer::of(bird).self(), bird);
        EXPECT_EQ(AnimalPeer::of(bird).self(), bird);
        BirdPeer::of(bird).feathers = 7;
        AnimalPeer::of(bird).renamings = 9;
        EXPECT_EQ(BirdPeer::of(bird).feathers, 7) << "the peers share memory";
    }
    EXPECT_EQ(lives,
              (std::vector<std::string>{"animal born", "bird born", "bird died", "animal died"}));
}

TEST_F(PeerTest, PropertiesCopyRetainAndTell) {
    const auto animal = Animal::make();
    const auto mutableName = objc::wrap<ns::String>(
        objc::send<"string", id>(objc::object(objc_getClass("NSMutableString"))));
    animal.setName(mutableName);
    objc::send<"appendString:">(mutableName.raw(), u"later"_ns);
    EXPECT_EQ(animal.name().utf8(), "") << "the property did not copy";
    animal.setName(u"虎"_ns);
    EXPECT_EQ(animal.name().utf8(), "虎");
    EXPECT_EQ(AnimalPeer::of(animal).renamings, 2);
    animal.setTame(true);
    EXPECT_TRUE(animal.isTame());

    const auto declared = desktop::declaredProperties(Animal::classObject());
    ASSERT_EQ(declared.size(), 2U);
    EXPECT_EQ(declared[0].name + " " + declared[0].attributes, "name T@,C,N");
    EXPECT_EQ(declared[1].name + " " + declared[1].attributes, "tame TB,N,GisTame");
}

TEST_F(PeerTest, TheRuntimeTellsOfClassesAndWhatTheyDeclare) {
    EXPECT_EQ(std::ranges::count(objc::allClasses(), Animal::classObject()), 1);
    Bird::sendClass<"class">();
    std::vector<std::string> properties;
    objc::forEachProperty(Animal::classObject(),
                          [&](const char* name) { properties.emplace_back(name); });
    EXPECT_EQ(properties, (std::vector<std::string>{"name", "tame"}));
    std::vector<std::string> methods;
    objc::forEachMethod(Bird::classObject(),
                        [&](SEL selector) { methods.emplace_back(sel_getName(selector)); });
    EXPECT_EQ(std::ranges::count(methods, "legs"), 1);
    EXPECT_EQ(std::ranges::count(methods, "name"), 0) << "the superclass's";
}

TEST_F(PeerTest, MethodsComeWithTheFirstMessageToTheClass) {
    const auto knows = [](Class cls, const std::string& name) { // without a message to it
        bool isKnown = false;
        objc::forEachMethod(cls, [&](SEL known) { isKnown |= name == sel_getName(known); });
        return isKnown;
    };
    const Class puppy = PuppyPeer::registerClass();
    EXPECT_TRUE(knows(DogPeer::registeredClass(), "bark")) << "at once";
    EXPECT_FALSE(knows(puppy, "play"));
    EXPECT_TRUE(initialised.empty());
    EXPECT_EQ((Puppy::sendClass<"sound", ns::String>().utf8()), "汪");
    EXPECT_TRUE(knows(puppy, "play"));
    EXPECT_EQ(initialised, (std::vector{DogPeer::registeredClass(), puppy}));

    // A subclass of others initialises itself by the same method.
    const Class others = objc_allocateClassPair(puppy, "TestPuppyOfOthers", 0);
    objc_registerClassPair(others);
    const auto theirs =
        objc::wrap<Puppy>(objc_autorelease(objc::send<"init", id>(objc_alloc(others))));
    EXPECT_EQ((theirs.send<"play", int>()), 1);
    EXPECT_EQ(initialised.size(), 3U);
    EXPECT_EQ(initialised.back(), others);
}

TEST_F(PeerTest, SubclassesOverrideAndReachTheSuperclass) {
    EXPECT_EQ(Animal::make().legs(), 4);
    EXPECT_EQ(Bird::make().legs(), 2);
    EXPECT_EQ((Bird::sendClass<"kingdom", ns::String>().utf8()), "动物");
}

TEST_F(PeerTest, ContainedClassesSwallowOthersPropagate) {
    EXPECT_EQ((Bird::make().send<"fall:", int>(3)), 0);
    const auto animal = Animal::make();
    try {
        animal.send<"raise">();
        FAIL() << "nothing was thrown";
    } catch (...) {
        const objc::ExceptionText text = objc::describeCurrentException();
        EXPECT_EQ(text.name, "Roar");
        EXPECT_EQ(text.reason, "from the animal");
    }
}

TEST_F(PeerTest, ATakenNameKeepsItsClass) {
    EXPECT_EQ(AnimalPeer::registerClass(), nullptr);
    EXPECT_EQ(Animal::make().legs(), 4);
}

TEST_F(PeerTest, ContainedClassesSwallowWhatAnAssignmentCauses) {
    const auto bird = Bird::make();
    bird.send<"setSong:">(u"钟"_ns);
    EXPECT_EQ((bird.send<"song", ns::String>().utf8()), "钟");
}

TEST_F(PeerTest, NilAnswersZero) {
    const Animal nobody;
    EXPECT_EQ(nobody.legs(), 0);
    EXPECT_FALSE(nobody.name());
    nobody.setTame(true);
    EXPECT_EQ(ui::View().transform(), (CGAffineTransform{0, 0, 0, 0, 0, 0}));
}

struct Host : objc::Kind<Host, "TestHost"> {};

std::vector<std::string> farewells;

/// A host's class that sends to its object while it deallocates it.
void makeHost() {
    const Class cls = objc_allocateClassPair(objc::Object::classObject(), "TestHost", 0);
    constexpr auto farewell = +[](id, SEL) { farewells.emplace_back("host"); };
    constexpr auto dealloc = +[](id self, SEL name) {
        objc::send<"farewell">(self);
        objc::sendSuper<"dealloc">(objc::Object::classObject(), self);
        static_cast<void>(name);
    };
    class_addMethod(cls, sel_registerName("farewell"), reinterpret_cast<IMP>(farewell), "v@:");
    class_addMethod(cls, sel_registerName("dealloc"), reinterpret_cast<IMP>(dealloc), "v@:");
    objc_registerClassPair(cls);
}

struct Guest : objc::Kind<Guest, "TestGuest", Host> {};
class GuestPeer : public objc::Peer<GuestPeer, Guest> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"farewell", &GuestPeer::farewell>()};
    }

private:
    void farewell() { farewells.push_back(name_); }
    std::string name_ = "guest";
};

TEST_F(PeerTest, WhatASuperclassSendsWhileItDeallocatesReachesNoDeadPeer) {
    makeHost();
    GuestPeer::registerClass();
    {
        const objc::Pool inner;
        Guest::make().send<"farewell">();
    }
    EXPECT_EQ(farewells, (std::vector<std::string>{"guest", "host"}));
}

TEST_F(PeerTest, APoolReleasesItsObjectsAtItsEnd) {
    const objc::Pool outer;
    objc::Strong<Animal> kept;
    {
        const objc::Pool inner;
        kept = Animal::make();
        EXPECT_EQ((kept.send<"retainCount", unsigned long>()), 2U);
    }
    EXPECT_EQ((kept.send<"retainCount", unsigned long>()), 1U);
}

} // namespace
