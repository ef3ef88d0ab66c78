// NSSet.
#pragma once

#include "bindings/foundation/array.hpp"

namespace ns {

struct Set : objc::Kind<Set, "NSSet"> {
    using Kind::Kind;

    static Set with(objc::Object element) { return sendClass<"setWithObject:", Set>(element); }
    static Set withArray(Array elements) { return sendClass<"setWithArray:", Set>(elements); }
    /// In no particular order.
    [[nodiscard]] Array allObjects() const { return send<"allObjects", Array>(); }
};

} // namespace ns
