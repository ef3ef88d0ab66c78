// What the runtime knows: its classes, and what each of them declares itself.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <cstdlib>
#include <memory>
#include <vector>

struct objc_property;
using objc_property_t = objc_property*;

// Of the runtime's C interface what only this file needs.
extern "C" {
/// How many classes there are; writes at most `count` of them.
int objc_getClassList(Class* buffer, int count);
objc_property_t* class_copyPropertyList(Class cls, unsigned int* count);
const char* property_getName(objc_property_t property);
Method* class_copyMethodList(Class cls, unsigned int* count);
SEL method_getName(Method method);
}

namespace objc {

/// Every class that is registered, in the runtime's order.
[[nodiscard]] inline std::vector<Class> allClasses() {
    std::vector<Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
    const auto room = static_cast<int>(classes.size());
    const auto known = static_cast<std::size_t>(objc_getClassList(classes.data(), room));
    classes.resize(known < classes.size() ? known : classes.size()); // others may come and go
    return classes;
}

namespace detail {

/// Calls `body` with each of the class's items, which `copyList` gives in memory to be freed.
template <class Item, class Body>
void forEachCopied(Class cls, Item* (*copyList)(Class, unsigned int*), Body body) {
    unsigned int count = 0;
    const std::unique_ptr<Item[], decltype(&std::free)> items(copyList(cls, &count), &std::free);
    for (unsigned int index = 0; index < count; ++index) {
        body(items[index]);
    }
}

} // namespace detail

/// Calls `body` with the name of each property that the class itself declares.
template <class Body>
void forEachProperty(Class cls, Body body) {
    detail::forEachCopied(cls, &class_copyPropertyList,
                          [&body](objc_property_t property) { body(property_getName(property)); });
}

/// Calls `body` with the selector of each instance method of the class itself.
template <class Body>
void forEachMethod(Class cls, Body body) {
    detail::forEachCopied(cls, &class_copyMethodList,
                          [&body](Method method) { body(method_getName(method)); });
}

} // namespace objc
