// NSURL.
#pragma once

#include "bindings/foundation/string.hpp"

namespace ns {

struct Url : objc::Kind<Url, "NSURL"> {
    using Kind::Kind;

    /// Nil when the text is not a URL.
    static Url withString(String text) { return sendClass<"URLWithString:", Url>(text); }
    static Url fileUrlWithPath(String path, bool isDirectory) {
        return sendClass<"fileURLWithPath:isDirectory:", Url>(path, isDirectory);
    }
    /// Without percent escapes; nil when there is none.
    [[nodiscard]] String path() const { return send<"path", String>(); }
    [[nodiscard]] String lastPathComponent() const { return send<"lastPathComponent", String>(); }
    [[nodiscard]] String absoluteString() const { return send<"absoluteString", String>(); }
    /// Nil when the address has none.
    [[nodiscard]] String host() const { return send<"host", String>(); }
};

} // namespace ns
