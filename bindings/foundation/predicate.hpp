// NSPredicate.
#pragma once

#include "bindings/foundation/array.hpp"

namespace ns {

struct Predicate : objc::Kind<Predicate, "NSPredicate"> {
    using Kind::Kind;

    /// Of a format such as "content CONTAINS[cd] %@". Raises when it cannot be read.
    static Predicate withFormat(String format, Array arguments) {
        return sendClass<"predicateWithFormat:argumentArray:", Predicate>(format, arguments);
    }
    [[nodiscard]] bool evaluate(objc::Object object) const {
        return send<"evaluateWithObject:", bool>(object);
    }
};

} // namespace ns
