// NSPropertyListSerialization: property lists as bytes.
#pragma once

#include "bindings/foundation/data.hpp"

namespace ns {

/// The platform's numbers.
enum class PropertyListFormat : unsigned long { openStep = 1, xml = 100, binary = 200 };

struct PropertyListSerialization
    : objc::Kind<PropertyListSerialization, "NSPropertyListSerialization"> {
    using Kind::Kind;

    /// An error when `list` holds anything that a property list cannot.
    static Result<Data> data(objc::Object list, PropertyListFormat format) {
        const ErrorPointer error;
        return error.result(sendClass<"dataWithPropertyList:format:options:error:", Data>(
            list, format, 0UL, error.out()));
    }
    /// The list in the bytes, of whichever format, which is told when `format` is not null;
    /// immutable. An error when they hold none.
    static Result<objc::Object> propertyList(Data data, PropertyListFormat* format = nullptr) {
        const ErrorPointer error;
        return error.result(sendClass<"propertyListWithData:options:format:error:", objc::Object>(
            data, 0UL, static_cast<void*>(format), error.out()));
    }
    /// The same with containers and texts that can be changed, and the format that it is in.
    static Result<objc::Object> mutablePropertyList(Data data, PropertyListFormat& format) {
        constexpr unsigned long mutableContainersAndLeaves = 2;
        const ErrorPointer error;
        return error.result(sendClass<"propertyListWithData:options:format:error:", objc::Object>(
            data, mutableContainersAndLeaves, static_cast<void*>(&format), error.out()));
    }
};

} // namespace ns
