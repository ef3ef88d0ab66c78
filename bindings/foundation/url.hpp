// NSURL.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/result.hpp"

namespace ns {

/// The names of what a file's URL tells of the file.
namespace url_resources {

using namespace literals;

/// A date.
inline String creationDate() { return u"NSURLCreationDateKey"_ns; }
/// A string.
inline String fileProtection() { return u"NSURLFileProtectionKey"_ns; }

} // namespace url_resources

struct Url : objc::Kind<Url, "NSURL"> {
    using Kind::Kind;

    /// Nil when the text is not a URL.
    static Url withString(String text) { return sendClass<"URLWithString:", Url>(text); }
    static Url fileUrlWithPath(String path, bool isDirectory) {
        return sendClass<"fileURLWithPath:isDirectory:", Url>(path, isDirectory);
    }
    /// Without percent escapes; nil when there is none.
    [[nodiscard]] String path() const { return send<"path", String>(); }
    /// Whether it is written as that of a folder: with a slash at the end of the path.
    [[nodiscard]] bool hasDirectoryPath() const { return send<"hasDirectoryPath", bool>(); }
    /// By the names above; what the file does not have is left out.
    [[nodiscard]] Result<Dictionary> resourceValues(ArrayOf<String> keys) const {
        const ErrorPointer error;
        return error.result(send<"resourceValuesForKeys:error:", Dictionary>(keys, error.out()));
    }
    [[nodiscard]] String lastPathComponent() const { return send<"lastPathComponent", String>(); }
    [[nodiscard]] String absoluteString() const { return send<"absoluteString", String>(); }
    /// Nil when the address has none.
    [[nodiscard]] String host() const { return send<"host", String>(); }
};

} // namespace ns
