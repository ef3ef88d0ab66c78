// NSJSONSerialization.
#pragma once

#include "bindings/foundation/data.hpp"

namespace ns {

struct JsonSerialization : objc::Kind<JsonSerialization, "NSJSONSerialization"> {
    using Kind::Kind;

    /// The dictionary or array in the bytes, immutable; nil when they are nil or not JSON. Its
    /// values are of any kind that JSON has, null being NSNull.
    static objc::Object object(Data data) {
        return data ? sendClass<"JSONObjectWithData:options:error:", objc::Object>(
                          data, 0UL, static_cast<void*>(nullptr))
                    : objc::Object();
    }
};

} // namespace ns
