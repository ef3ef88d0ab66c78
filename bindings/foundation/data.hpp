// NSData.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

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

    [[nodiscard]] unsigned long length() const { return send<"length", unsigned long>(); }
    [[nodiscard]] String base64() const {
        return send<"base64EncodedStringWithOptions:", String>(0UL);
    }
    bool writeToFile(String path, bool atomically) const {
        return send<"writeToFile:atomically:", bool>(path, atomically);
    }
};

} // namespace ns
