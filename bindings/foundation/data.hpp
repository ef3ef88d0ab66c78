// NSData.
#pragma once

#include "bindings/foundation/result.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/options.hpp"

namespace ns {

using objc::operator|, objc::operator&, objc::operator~;

/// The platform's bits. `atomic`: through a file beside it, so that nobody ever sees half of it.
enum class DataWritingOptions : unsigned long { atomic = 1U << 0U, withoutOverwriting = 1U << 1U };
constexpr bool areOptions(DataWritingOptions) { return true; }

struct Data : objc::Kind<Data, "NSData"> {
    using Kind::Kind;

    /// A copy of the bytes.
    static Data from(std::string_view bytes) {
        return sendClass<"dataWithBytes:length:", Data>(static_cast<const void*>(bytes.data()),
                                                        static_cast<unsigned long>(bytes.size()));
    }
    /// Nil when the file cannot be read.
    static Data withContentsOfFile(String path) {
        return sendClass<"dataWithContentsOfFile:", Data>(path);
    }
    /// Nil when the text is not Base64.
    static Data fromBase64(String text) {
        return make<"initWithBase64EncodedString:options:">(text, 0UL);
    }

    /// Valid as long as the object; none for nil.
    [[nodiscard]] std::string_view bytes() const {
        return {static_cast<const char*>(send<"bytes", const void*>()), length()};
    }
    [[nodiscard]] unsigned long length() const { return send<"length", unsigned long>(); }
    [[nodiscard]] String base64() const {
        return send<"base64EncodedStringWithOptions:", String>(0UL);
    }
    /// Nil when the file holds the bytes.
    [[nodiscard]] Error writeToFile(String path, DataWritingOptions options = {}) const {
        const ErrorPointer error;
        return error.unless(send<"writeToFile:options:error:", bool>(path, options, error.out()));
    }
};

inline String String::from(Data data, StringEncoding encoding) {
    return make<"initWithData:encoding:">(data, encoding);
}

} // namespace ns
