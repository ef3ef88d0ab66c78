// Classes made, extended and hooked at run time: what the runtime's own functions would have made
// of them, told message by message.
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/exception_in_flight.hpp"
#include "bindings/objc/pool.hpp"
#include "bindings/objc/selector.hpp"
#include "tests/desktop/runtime/class_messages.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <dlfcn.h>
#include <string>
#include <vector>

extern "C" {
void objc_disposeClassPair(Class cls);
Method* class_copyMethodList(Class cls, unsigned int* count);
SEL method_getName(Method method);
SEL sel_registerTypedName(const char* name, const char* types);
}

namespace {

using tests::ask;
using tests::metaclass;
using tests::root;

template <int Value>
const IMP answering = reinterpret_cast<IMP>(&tests::number<Value>);

/// The runtime's functions: the ones that the process uses, or libobjc's own.
struct Functions {
    decltype(&objc_allocateClassPair) allocate = &objc_allocateClassPair;
    decltype(&class_addMethod) add = &class_addMethod;
    decltype(&objc_registerClassPair) registerPair = &objc_registerClassPair;
};

template <class Function>
Function* ofLibobjc(const char* name) {
    static void* const library = dlopen("libobjc.so.4", RTLD_NOW | RTLD_NOLOAD);
    return reinterpret_cast<Function*>(dlsym(library, name));
}

Functions libobjcs() {
    return {&objc_allocateClassPair, ofLibobjc<decltype(class_addMethod)>("class_addMethod"),
            ofLibobjc<decltype(objc_registerClassPair)>("objc_registerClassPair")};
}

std::string freshName() {
    static int count = 0;
    return "ClassPairsTest" + std::to_string(++count);
}

Class allocated(Class superclass) {
    return objc_allocateClassPair(superclass, freshName().c_str(), 0);
}

Class registered(Class superclass) {
    const Class cls = allocated(superclass);
    objc_registerClassPair(cls);
    return cls;
}

id instanceOf(Class cls) { return objc_autorelease(objc::send<"init", id>(objc_alloc(cls))); }

bool hasMethod(Class cls, SEL name) { return class_getInstanceMethod(cls, name) != nullptr; }

/// All that can be asked of a class's own methods.
std::vector<std::string> methodsOf(Class cls) {
    unsigned int count = 0;
    Method* const methods = class_copyMethodList(cls, &count);
    std::vector<std::string> described;
    for (unsigned int index = 0; index < count; ++index) {
        described.push_back(std::string(sel_getName(method_getName(methods[index]))) + " " +
                            method_getTypeEncoding(methods[index]));
    }
    std::free(static_cast<void*>(methods));
    std::ranges::sort(described);
    return described;
}

class ClassPairs : public testing::Test {
protected:
    const objc::Pool pool_;
};

TEST_F(ClassPairs, AreThoseThatLibobjcMakes) {
    struct Added {
        const char* name;
        IMP implementation;
        const char* types;
    };
    const std::array added{Added{"pairOne", answering<1>, "i@:"},
                           Added{"pairTwo:with:", answering<2>, "i24@0:8@16@24"},
                           Added{"description", answering<3>, "@@:"},
                           Added{"pairOne", answering<4>, "q@:"}, // there already
                           Added{"", answering<5>, "i@:"},
                           Added{"pairWithoutTypes", answering<6>, ""},
                           Added{"pairWithoutTypes", answering<6>, nullptr},
                           Added{"pairWithoutCode", nullptr, "i@:"}};
    std::array<std::vector<std::string>, 2> seen;
    for (const bool ours : {true, false}) {
        const Functions functions = ours ? Functions() : libobjcs();
        const std::string name = freshName();
        const Class cls = functions.allocate(root(), name.c_str(), 0);
        auto& notes = seen.at(ours ? 0 : 1);
        for (const Added& one : added) {
            for (const Class target : {cls, metaclass(cls)}) {
                notes.push_back(std::to_string(functions.add(target, sel_registerName(one.name),
                                                             one.implementation, one.types)));
            }
        }
        notes.push_back(std::to_string(
            functions.add(nullptr, sel_registerName("pairOne"), answering<1>, "i@:")));
        notes.push_back(std::to_string(functions.add(cls, nullptr, answering<1>, "i@:")));
        EXPECT_EQ(objc_lookUpClass(name.c_str()), nullptr);
        functions.registerPair(cls);
        functions.registerPair(cls); // as if it had not been called again
        EXPECT_EQ(objc_lookUpClass(name.c_str()), cls);
        EXPECT_EQ(objc_getMetaClass(name.c_str()), metaclass(cls));
        EXPECT_EQ(class_getSuperclass(cls), root());
        EXPECT_EQ(class_getSuperclass(metaclass(cls)), metaclass(root()));
        EXPECT_EQ(metaclass(metaclass(cls)), metaclass(metaclass(root())));
        for (const Class side : {cls, metaclass(cls)}) {
            const auto methods = methodsOf(side);
            notes.insert(notes.end(), methods.begin(), methods.end());
        }
        notes.push_back(std::to_string(ask(instanceOf(cls), objc::selector<"pairOne">())));
        notes.push_back(std::to_string(ask(cls, objc::selector<"pairOne">())));
    }
    EXPECT_EQ(seen[0], seen[1]);
}

TEST_F(ClassPairs, TakeManyMethodsAndEachNameOnce) {
    constexpr int count = 5000;
    const Class cls = allocated(root());
    const auto add = [](Class to, int index, const char* types) {
        const std::string name = "pairNumber" + std::to_string(index);
        return class_addMethod(to, sel_registerTypedName(name.c_str(), types), answering<7>, "i@:");
    };
    for (int index = 0; index < count; ++index) {
        ASSERT_TRUE(add(cls, index, nullptr));
        ASSERT_FALSE(add(cls, index / 2, "i@:")); // by a selector that knows its types
        if (index % 1000 == 0) {                  // the other side of the class meanwhile
            EXPECT_TRUE(add(metaclass(cls), index, nullptr));
            EXPECT_FALSE(add(metaclass(cls), index, nullptr));
        }
    }
    objc_registerClassPair(cls);
    EXPECT_EQ(methodsOf(cls).size(), count);
    EXPECT_EQ(ask(instanceOf(cls), sel_registerName("pairNumber4999")), 7);
    EXPECT_EQ(ask(instanceOf(registered(cls)), sel_registerName("pairNumber0")), 7);
}

TEST_F(ClassPairs, KeepTheirOwnCopyOfTypes) {
    std::string types = "i@:";
    const Class cls = allocated(root());
    class_addMethod(cls, objc::selector<"pairCopied">(), answering<1>, types.c_str());
    types = "q@:";
    objc_registerClassPair(cls);
    EXPECT_EQ(methodsOf(cls), std::vector<std::string>{"pairCopied i@:"});
}

TEST_F(ClassPairs, AreSubclassesForTheRuntime) {
    const Class parent = registered(root());
    const Class child = registered(parent);
    const Class grandchild = registered(child);
    EXPECT_EQ(ask(grandchild, objc::selector<"hash">()), ask(grandchild, objc::selector<"hash">()));
    class_addMethod(parent, objc::selector<"pairLater">(), answering<1>, "i@:");
    class_addMethod(metaclass(parent), objc::selector<"pairLater">(), answering<2>, "i@:");
    EXPECT_EQ(ask(instanceOf(grandchild), objc::selector<"pairLater">()), 1);
    EXPECT_EQ(ask(grandchild, objc::selector<"pairLater">()), 2);
}

TEST_F(ClassPairs, WithoutASuperclassAnswerAsClassesToo) {
    const Class cls = allocated(nullptr);
    class_addMethod(cls, objc::selector<"pairOfRoot">(), answering<9>, "i@:");
    objc_registerClassPair(cls);
    EXPECT_EQ(class_getSuperclass(cls), nullptr);
    EXPECT_EQ(ask(cls, objc::selector<"pairOfRoot">()), 9);
}

TEST_F(ClassPairs, MayBeGivenUp) {
    const std::string name = freshName();
    const Class cls = objc_allocateClassPair(root(), name.c_str(), 0);
    class_addMethod(cls, objc::selector<"pairOne">(), answering<1>, "i@:");
    class_addMethod(cls, objc::selector<"pairLater">(), answering<1>, "i@:");
    class_addMethod(metaclass(cls), objc::selector<"pairOne">(), answering<1>, "i@:");
    objc_disposeClassPair(cls);
    EXPECT_EQ(objc_lookUpClass(name.c_str()), nullptr);
    const Class again = objc_allocateClassPair(root(), name.c_str(), 0);
    objc_registerClassPair(again);
    EXPECT_FALSE(hasMethod(again, objc::selector<"pairOne">()));
    objc_disposeClassPair(again); // known already: it stays
    EXPECT_EQ(objc_lookUpClass(name.c_str()), again);
}

TEST_F(ClassPairs, OfATakenNameStayUnknown) {
    const std::string name = freshName();
    const Class first = objc_allocateClassPair(root(), name.c_str(), 0);
    const Class second = objc_allocateClassPair(root(), name.c_str(), 0);
    objc_registerClassPair(first);
    objc_registerClassPair(second);
    EXPECT_EQ(objc_lookUpClass(name.c_str()), first);
    objc_disposeClassPair(second);
}

/// As for a name that no class has.
TEST_F(ClassPairs, LeaveTheirMessagesUnknownToOthers) {
    const Class cls = allocated(root());
    class_addMethod(cls, objc::selector<"pairOfOneClass">(), answering<1>, "i@:");
    objc_registerClassPair(cls);
    try {
        ask(instanceOf(root()), objc::selector<"pairOfOneClass">());
        ADD_FAILURE() << "it is answered";
    } catch (...) {
        const auto raised = objc::wrap<ns::Exception>(objc::exceptionInFlight().raw());
        EXPECT_EQ(raised.name().utf8(), "NSInvalidArgumentException");
        EXPECT_NE(raised.reason().utf8().find("pairOfOneClass]: unrecognized selector"),
                  std::string::npos);
    }
}

} // namespace
