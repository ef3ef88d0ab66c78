// Classes written in C++: life, properties, inheritance, exceptions.
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/properties.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

using namespace ns::literals;

std::vector<std::string> lives;

struct AnimalKind : objc::Kind<AnimalKind, "TestAnimal"> {
    using Kind::Kind;
    [[nodiscard]] ns::String name() const { return send<"name", ns::String>(); }
    void setName(ns::String name) const { send<"setName:">(name); }
    [[nodiscard]] int legs() const { return send<"legs", int>(); }
    [[nodiscard]] bool isTame() const { return send<"isTame", bool>(); }
    void setTame(bool tame) const { send<"setTame:">(tame); }
};

class Animal : public objc::Peer<Animal, AnimalKind, objc::Boundary::propagates> {
public:
    static auto methods() {
        return std::array{
            objc::property<"name", &Animal::name_, &Animal::renamed>(),
            objc::flag<"tame", &Animal::tame_>(),
            objc::method<"legs", &Animal::legs>(),
            objc::method<"raise", &Animal::raise>(),
            objc::classMethod<"kingdom", &Animal::kingdom>(),
        };
    }
    Animal() { lives.emplace_back("animal born"); }
    ~Animal() { lives.emplace_back("animal died"); }
    int renamings = 0;

private:
    void renamed() { ++renamings; }
    [[nodiscard]] int legs() const { return 4; }
    void raise() { ns::Exception::with(u"Roar"_ns, u"from the animal"_ns).raise(); }
    static ns::String kingdom(Class) { return u"动物"_ns; }

    objc::Copied<ns::String> name_;
    bool tame_ = false;
};

struct BirdKind : objc::Kind<BirdKind, "TestBird", AnimalKind> {};

class Bird : public objc::Peer<Bird, BirdKind> {
public:
    static auto methods() {
        return std::array{objc::method<"legs", &Bird::legs>(),
                          objc::method<"fall:", &Bird::fall>()};
    }
    Bird() { lives.emplace_back("bird born"); }
    ~Bird() { lives.emplace_back("bird died"); }
    int feathers = 0;

private:
    [[nodiscard]] int legs() const { return super<"legs", int>() - 2; }
    int fall(int) { throw std::runtime_error("no wings"); }
};

class PeerTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        Animal::registerClass();
        Bird::registerClass();
    }
    void SetUp() override { lives.clear(); }
    objc::Pool pool_;
};

TEST_F(PeerTest, PeersLiveAndDieWithTheirObjectSuperclassFirst) {
    {
        const objc::Pool inner;
        const auto bird = BirdKind::make();
        EXPECT_EQ(Bird::of(bird).self(), bird);
        EXPECT_EQ(Animal::of(bird).self(), bird);
        Bird::of(bird).feathers = 7;
        Animal::of(bird).renamings = 9;
        EXPECT_EQ(Bird::of(bird).feathers, 7) << "the peers share memory";
    }
    EXPECT_EQ(lives,
              (std::vector<std::string>{"animal born", "bird born", "bird died", "animal died"}));
}

TEST_F(PeerTest, PropertiesCopyRetainAndTell) {
    const auto animal = AnimalKind::make();
    const auto mutableName = objc::wrap<ns::String>(
        objc::send<"string", id>(objc::object(objc_getClass("NSMutableString"))));
    animal.setName(mutableName);
    objc::send<"appendString:">(mutableName.raw(), u"later"_ns);
    EXPECT_EQ(animal.name().utf8(), "") << "the property did not copy";
    animal.setName(u"虎"_ns);
    EXPECT_EQ(animal.name().utf8(), "虎");
    EXPECT_EQ(Animal::of(animal).renamings, 2);
    animal.setTame(true);
    EXPECT_TRUE(animal.isTame());

    const auto declared = desktop::declaredProperties(AnimalKind::classObject());
    ASSERT_EQ(declared.size(), 2U);
    EXPECT_EQ(declared[0].name + " " + declared[0].attributes, "name T@,C,N");
    EXPECT_EQ(declared[1].name + " " + declared[1].attributes, "tame TB,N,GisTame");
}

TEST_F(PeerTest, SubclassesOverrideAndReachTheSuperclass) {
    EXPECT_EQ(AnimalKind::make().legs(), 4);
    EXPECT_EQ(BirdKind::make().legs(), 2);
    EXPECT_EQ((BirdKind::sendClass<"kingdom", ns::String>().utf8()), "动物");
}

TEST_F(PeerTest, ContainedClassesSwallowOthersPropagate) {
    EXPECT_EQ((BirdKind::make().send<"fall:", int>(3)), 0);
    const auto animal = AnimalKind::make();
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
    EXPECT_EQ(Animal::registerClass(), nullptr);
    EXPECT_EQ(AnimalKind::make().legs(), 4);
}

TEST_F(PeerTest, NilAnswersZero) {
    const AnimalKind nobody;
    EXPECT_EQ(nobody.legs(), 0);
    EXPECT_FALSE(nobody.name());
    nobody.setTame(true);
}

} // namespace
