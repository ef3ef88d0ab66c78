// What the runtime knows: its classes, and what each of them declares itself.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <cstdlib>
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

/// Calls `body` with the name of each property that the class itself declares.
template <class Body>
void forEachProperty(Class cls, Body body) {
    unsigned int count = 0;
    objc_property_t* const properties = class_copyPropertyList(cls, &count);
    for (unsigned int index = 0; index < count; ++index) {
        body(property_getName(properties[index]));
    }
    std::free(properties);
}

/// Calls `body` with the selector of each instance method of the class itself.
template <class Body>
void forEachMethod(Class cls, Body body) {
    unsigned int count = 0;
    Method* const methods = class_copyMethodList(cls, &count);
    for (unsigned int index = 0; index < count; ++index) {
        body(method_getName(methods[index]));
    }
    std::free(methods);
}

} // namespace objc
