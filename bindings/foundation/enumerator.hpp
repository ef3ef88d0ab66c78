// NSEnumerator.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

/// Walks a collection, which must not change meanwhile.
struct Enumerator : objc::Kind<Enumerator, "NSEnumerator"> {
    using Kind::Kind;

    /// Nil after the last one.
    [[nodiscard]] objc::Object next() const { return send<"nextObject", objc::Object>(); }
};

} // namespace ns
