// NSUUID.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Uuid : objc::Kind<Uuid, "NSUUID"> {
    using Kind::Kind;

    /// A new one, at random.
    static Uuid uuid() { return sendClass<"UUID", Uuid>(); }
    /// In its standard form: 36 characters, upper case.
    [[nodiscard]] String uuidString() const { return send<"UUIDString", String>(); }
};

} // namespace ns
