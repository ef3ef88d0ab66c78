// Asking classes made by tests: their methods answer numbers.
#pragma once

#include "bindings/objc/send.hpp"

namespace tests {

inline Class root() { return objc_getClass("NSObject"); }

inline Class metaclass(Class cls) { return object_getClass(objc::object(cls)); }

/// A method that answers the number.
template <int Value>
int number(id, SEL) {
    return Value;
}

inline int ask(id receiver, SEL name) {
    return reinterpret_cast<int (*)(id, SEL)>(objc_msg_lookup(receiver, name))(receiver, name);
}
inline int ask(Class cls, SEL name) { return ask(objc::object(cls), name); }

} // namespace tests
