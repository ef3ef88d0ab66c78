// What classes answer while methods are added and hooked, told message by message.
#include "bindings/objc/hook_primitive.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/objc/selector.hpp"
#include "tests/desktop/runtime/class_messages.hpp"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using tests::ask;
using tests::metaclass;
using tests::root;

constexpr std::size_t answerCount = 50;
template <int... Values>
std::array<IMP, answerCount> numbers(std::integer_sequence<int, Values...>) {
    return {reinterpret_cast<IMP>(&tests::number<Values>)...};
}
const std::array answers = numbers(std::make_integer_sequence<int, answerCount>());

Class subclassOf(Class superclass) {
    static int count = 0;
    const std::string name = "DispatchTablesTest" + std::to_string(++count);
    const Class cls = objc_allocateClassPair(superclass, name.c_str(), 0);
    objc_registerClassPair(cls);
    return cls;
}

void add(Class cls, SEL name, std::size_t answer) {
    class_addMethod(cls, name, answers.at(answer), "i@:");
}

std::size_t hook(Class cls, SEL name, std::size_t answer) {
    IMP former = nullptr;
    MSHookMessageEx(cls, name, answers.at(answer), &former);
    return static_cast<std::size_t>(std::ranges::find(answers, former) - answers.begin());
}

/// Messages go to classes: their tables are those of any object.
class DispatchTables : public testing::Test {
protected:
    const objc::Pool pool_;
};

TEST_F(DispatchTables, HookAnInheritedMethodForTheClassAlone) {
    const SEL name = objc::selector<"dispatchInherited">();
    const Class parent = subclassOf(root());
    const Class child = subclassOf(parent);
    const Class grandchild = subclassOf(child);
    const Class sibling = subclassOf(parent);
    add(metaclass(parent), name, 1);
    EXPECT_EQ(ask(grandchild, name), 1);
    EXPECT_EQ(ask(sibling, name), 1);
    EXPECT_EQ(hook(metaclass(child), name, 2), 1U);
    EXPECT_EQ(ask(parent, name), 1);
    EXPECT_EQ(ask(child, name), 2);
    EXPECT_EQ(ask(grandchild, name), 2);
    EXPECT_EQ(ask(sibling, name), 1);
    EXPECT_EQ(ask(subclassOf(grandchild), name), 2);
    EXPECT_EQ(hook(metaclass(parent), name, 3), 1U);
    EXPECT_EQ(ask(grandchild, name), 2);
    EXPECT_EQ(ask(sibling, name), 3);
}

TEST_F(DispatchTables, HookWhatSubclassesOverrideNearby) {
    std::vector<SEL> names;
    for (int index = 0; index < 100; ++index) { // neighbours in the tables
        names.push_back(sel_registerName(("dispatchNear" + std::to_string(index)).c_str()));
    }
    const Class parent = subclassOf(root());
    const Class child = subclassOf(parent);
    for (const SEL name : names) {
        add(metaclass(parent), name, 1);
    }
    add(metaclass(child), names[50], 2);
    EXPECT_EQ(ask(child, names[49]), 1);
    hook(metaclass(parent), names[49], 3);
    hook(metaclass(parent), names[50], 3);
    EXPECT_EQ(ask(child, names[49]), 3);
    EXPECT_EQ(ask(child, names[50]), 2);
    EXPECT_EQ(ask(parent, names[50]), 3);
}

/// Names that are newer than a table lie beyond its end.
TEST_F(DispatchTables, TakeNamesThatAreNewerThanThey) {
    const Class parent = subclassOf(root());
    const Class child = subclassOf(parent);
    EXPECT_EQ(ask(child, objc::selector<"hash">()), ask(child, objc::selector<"hash">()));
    for (int index = 0; index < 5000; ++index) {
        const SEL name = sel_registerName(("dispatchNew" + std::to_string(index)).c_str());
        add(metaclass(index % 2 == 0 ? parent : child), name, 4);
        ASSERT_EQ(ask(child, name), 4) << index;
    }
}

TEST_F(DispatchTables, AreRightWhileAClassIsInitialised) {
    static const SEL name = objc::selector<"dispatchInitialised">();
    static int seen = 0;
    const auto initialise = [](id cls, SEL) {
        ask(reinterpret_cast<Class>(cls), name);
        hook(object_getClass(cls), name, 6);
        add(object_getClass(cls), objc::selector<"dispatchAddedMeanwhile">(), 7);
        seen = ask(reinterpret_cast<Class>(cls), name);
    };
    const Class cls = subclassOf(root());
    add(metaclass(cls), name, 5);
    class_addMethod(metaclass(cls), objc::selector<"initialize">(),
                    reinterpret_cast<IMP>(static_cast<void (*)(id, SEL)>(initialise)), "v@:");
    EXPECT_EQ(ask(cls, name), 6);
    EXPECT_EQ(seen, 6);
    EXPECT_EQ(ask(cls, objc::selector<"dispatchAddedMeanwhile">()), 7);
}

/// What each class should answer, looked up the plain way.
class Model {
public:
    void add(std::size_t cls, std::size_t superclass) { superclasses_.insert({cls, superclass}); }
    void put(std::size_t cls, int name, int answer) { own_[{cls, name}] = answer; }
    [[nodiscard]] bool has(std::size_t cls, int name) const { return own_.contains({cls, name}); }
    [[nodiscard]] int answer(std::size_t cls, int name) const {
        for (;; cls = superclasses_.at(cls)) {
            if (const auto found = own_.find({cls, name}); found != own_.end()) {
                return found->second;
            }
            if (cls == 0) {
                return -1;
            }
        }
    }

private:
    std::map<std::size_t, std::size_t> superclasses_;
    std::map<std::pair<std::size_t, int>, int> own_;
};

TEST_F(DispatchTables, AgreeWithAPlainLookUpAfterAnyChanges) {
    constexpr int nameCount = 40;
    constexpr std::size_t classCount = 25;
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    std::vector<SEL> names;
    for (int index = 0; index < nameCount; ++index) {
        names.push_back(sel_registerName(("dispatchAny" + std::to_string(index)).c_str()));
        sel_registerName(("dispatchBetween" + std::to_string(index * 100)).c_str());
    }
    std::vector<Class> classes{subclassOf(root())};
    Model model;
    for (int step = 0; step < 4000; ++step) {
        if (classes.size() < classCount && below(100) == 0) {
            const std::size_t superclass = below(classes.size());
            model.add(classes.size(), superclass);
            classes.push_back(subclassOf(classes[superclass]));
        }
        const std::size_t cls = below(classes.size());
        const int name = static_cast<int>(below(nameCount));
        const SEL selector = names[static_cast<std::size_t>(name)];
        const std::size_t answer = below(answerCount);
        const int former = model.answer(cls, name);
        if (former >= 0 && below(2) == 0) {
            ASSERT_EQ(hook(metaclass(classes[cls]), selector, answer), former);
            model.put(cls, name, static_cast<int>(answer));
        } else if (!model.has(cls, name) && below(4) == 0) {
            add(metaclass(classes[cls]), selector, answer);
            model.put(cls, name, static_cast<int>(answer));
        }
        const std::size_t asked = below(classes.size());
        for (int each = 0; each < nameCount; ++each) {
            if (const int expected = model.answer(asked, each); expected >= 0) {
                ASSERT_EQ(ask(classes[asked], names[static_cast<std::size_t>(each)]), expected);
            }
        }
    }
}

TEST_F(DispatchTables, ServeThreadsWhileHooksAreSet) {
    const SEL name = objc::selector<"dispatchThreads">();
    const Class parent = subclassOf(root());
    const Class child = subclassOf(parent);
    add(metaclass(parent), name, 0);
    std::atomic<bool> ends{false};
    std::atomic<int> strange{0};
    std::vector<std::jthread> senders;
    for (int thread = 0; thread < 4; ++thread) {
        senders.emplace_back([&] {
            int last = 0;
            while (!ends) {
                const int answer = ask(child, name);
                strange += answer < last ? 1 : 0; // answers only ever grow
                last = answer;
            }
        });
    }
    for (std::size_t answer = 1; answer < answerCount; ++answer) {
        hook(metaclass(parent), name, answer);
        std::this_thread::yield();
    }
    ends = true;
    senders.clear();
    EXPECT_EQ(strange, 0);
    EXPECT_EQ(ask(child, name), static_cast<int>(answerCount - 1));
}

} // namespace
