// NSSet and NSMutableSet.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/enumerator.hpp"

namespace ns {

struct Set : objc::Kind<Set, "NSSet"> {
    using Kind::Kind;

    static Set withObject(objc::Object element) {
        return sendClass<"setWithObject:", Set>(element);
    }
    static Set withArray(Array elements) { return sendClass<"setWithArray:", Set>(elements); }
    [[nodiscard]] unsigned long count() const { return send<"count", unsigned long>(); }
    /// Whether an equal element is there.
    [[nodiscard]] bool contains(objc::Object element) const {
        return send<"containsObject:", bool>(element);
    }
    /// In no particular order.
    [[nodiscard]] Enumerator objects() const { return send<"objectEnumerator", Enumerator>(); }
    /// In no particular order.
    [[nodiscard]] Array allObjects() const { return send<"allObjects", Array>(); }
};

/// A set that is known to hold objects of one kind, which is not checked.
template <class Element>
struct SetOf : Set {
    using Set::Set;

    [[nodiscard]] ArrayOf<Element> allObjects() const {
        return Set::allObjects().template assume<ArrayOf<Element>>();
    }
};

struct MutableSet : objc::Kind<MutableSet, "NSMutableSet", Set> {
    using Kind::Kind;

    void add(objc::Object element) const { send<"addObject:">(element); }
    /// The equal element, if there is one.
    void remove(objc::Object element) const { send<"removeObject:">(element); }
    void removeAll() const { send<"removeAllObjects">(); }
};

} // namespace ns
