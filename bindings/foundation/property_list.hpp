// NSPropertyListSerialization: property lists as bytes.
#pragma once

#include "bindings/foundation/data.hpp"

namespace ns {

/// The platform's numbers.
enum class PropertyListFormat : unsigned long { xml = 100, binary = 200 };

struct PropertyList : objc::Kind<PropertyList, "NSPropertyListSerialization"> {
    using Kind::Kind;

    /// Nil when `list` holds anything that a property list cannot.
    static Data data(objc::Object list, PropertyListFormat format) {
        return sendClass<"dataWithPropertyList:format:options:error:", Data>(
            list, format, 0UL, static_cast<void*>(nullptr));
    }
    /// The list in the bytes, of whichever format, immutable; nil when they hold none.
    static objc::Object from(Data data) {
        return sendClass<"propertyListWithData:options:format:error:", objc::Object>(
            data, 0UL, static_cast<void*>(nullptr), static_cast<void*>(nullptr));
    }
};

} // namespace ns
