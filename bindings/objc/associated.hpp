// Values tied to an object's life, keyed by a selector: how a category keeps its properties.
#pragma once

#include "bindings/objc/object.hpp"
#include "bindings/objc/selector.hpp"

namespace objc {

/// How an associated value is kept; the runtime's own numbers.
enum class Association : unsigned long { assign = 0, retainNonatomic = 1, copyNonatomic = 3 };

/// Ties `value` (nil removes) to `owner` under the key that is the selector `Key` itself.
template <Literal Key>
void associate(Object owner, Object value, Association policy) {
    objc_setAssociatedObject(owner.raw(), selector<Key>(), value.raw(),
                             static_cast<unsigned long>(policy));
}

/// What was associated under the selector `Key`, or nil.
template <Literal Key, class Kind = Object>
Kind associated(Object owner) {
    return wrap<Kind>(objc_getAssociatedObject(owner.raw(), selector<Key>()));
}

} // namespace objc
