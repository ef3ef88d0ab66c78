// NSJSONSerialization.
#pragma once

#include "bindings/foundation/data.hpp"

namespace ns {

struct JsonSerialization : objc::Kind<JsonSerialization, "NSJSONSerialization"> {
    using Kind::Kind;

    /// The dictionary or array in the bytes, immutable; an error when they are nil or not JSON. Its
    /// values are of any kind that JSON has, null being NSNull.
    static Result<objc::Object> object(Data data) {
        const ErrorPointer error;
        return error.result(data ? sendClass<"JSONObjectWithData:options:error:", objc::Object>(
                                       data, 0UL, error.out())
                                 : objc::Object());
    }
};

} // namespace ns
