// NSSet and NSMutableSet.
#pragma once

#include "bindings/foundation/array.hpp"

namespace ns {

struct Set : objc::Kind<Set, "NSSet"> {
    using Kind::Kind;

    static Set with(objc::Object element) { return sendClass<"setWithObject:", Set>(element); }
    static Set withArray(Array elements) { return sendClass<"setWithArray:", Set>(elements); }
    [[nodiscard]] unsigned long count() const { return send<"count", unsigned long>(); }
    /// Whether an equal element is there.
    [[nodiscard]] bool contains(objc::Object element) const {
        return send<"containsObject:", bool>(element);
    }
    /// In no particular order.
    [[nodiscard]] Array allObjects() const { return send<"allObjects", Array>(); }
};

struct MutableSet : objc::Kind<MutableSet, "NSMutableSet", Set> {
    using Kind::Kind;

    void add(objc::Object element) const { send<"addObject:">(element); }
    /// The equal element, if there is one.
    void remove(objc::Object element) const { send<"removeObject:">(element); }
    void removeAll() const { send<"removeAllObjects">(); }
};

} // namespace ns
