// NSFileManager.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/date.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/result.hpp"
#include "bindings/foundation/url.hpp"

namespace ns {

/// Folders that the system names; the platform's numbers.
enum class SearchPathDirectory : unsigned long { document = 9 };
/// Whose folders; the platform's bits.
enum class SearchPathDomainMask : unsigned long { user = 1 };

/// What listing a folder leaves out; the platform's bits.
enum class DirectoryEnumerationOptions : unsigned long { skipsHiddenFiles = 1U << 2U };
constexpr bool areOptions(DirectoryEnumerationOptions) { return true; }

/// The names of files' attributes.
namespace file_attributes {

using namespace literals;

/// NSFileSize, NSFilePosixPermissions: numbers.
inline String size() { return u"NSFileSize"_ns; }
inline String posixPermissions() { return u"NSFilePosixPermissions"_ns; }
/// NSFileCreationDate, NSFileModificationDate: dates.
inline String creationDate() { return u"NSFileCreationDate"_ns; }
inline String modificationDate() { return u"NSFileModificationDate"_ns; }
/// Whether they are those of a folder; false for nil.
inline bool isDirectory(Dictionary attributes) {
    return attributes.get(u"NSFileType"_ns).isEqual(u"NSFileTypeDirectory"_ns);
}

} // namespace file_attributes

struct FileManager : objc::Kind<FileManager, "NSFileManager"> {
    using Kind::Kind;

    static FileManager defaultManager() { return sendClass<"defaultManager", FileManager>(); }
    /// The names of what the folder holds, in no particular order.
    [[nodiscard]] Result<ArrayOf<String>> contentsOfDirectory(String path) const {
        const ErrorPointer error;
        return error.result(
            send<"contentsOfDirectoryAtPath:error:", ArrayOf<String>>(path, error.out()));
    }
    /// URLs of what the folder holds, in no particular order, those of folders with a slash at the
    /// end; `keys` (may be nil) names the resource values that will be asked for.
    [[nodiscard]] Result<ArrayOf<Url>>
    contentsOfDirectory(Url folder, ArrayOf<String> keys,
                        DirectoryEnumerationOptions options) const {
        const ErrorPointer error;
        return error.result(
            send<"contentsOfDirectoryAtURL:includingPropertiesForKeys:options:error:",
                 ArrayOf<Url>>(folder, keys, options, error.out()));
    }
    /// Files and folders alike; links are followed.
    [[nodiscard]] bool fileExists(String path) const {
        return send<"fileExistsAtPath:", bool>(path);
    }
    [[nodiscard]] Url temporaryDirectory() const { return send<"temporaryDirectory", Url>(); }
    /// Nil when the file, or the folder with all in it, was copied; nothing is replaced.
    [[nodiscard]] Error copyItem(String path, String to) const {
        const ErrorPointer error;
        return error.unless(send<"copyItemAtPath:toPath:error:", bool>(path, to, error.out()));
    }
    /// Nil when the file, or the folder with all in it, was removed.
    [[nodiscard]] Error removeItem(String path) const {
        const ErrorPointer error;
        return error.unless(send<"removeItemAtPath:error:", bool>(path, error.out()));
    }
    /// Best first; an application has one folder for its documents.
    [[nodiscard]] ArrayOf<Url> urlsFor(SearchPathDirectory directory,
                                       SearchPathDomainMask domains) const {
        return send<"URLsForDirectory:inDomains:", ArrayOf<Url>>(directory, domains);
    }
    /// By the names above; of a link itself where the path leads to one.
    [[nodiscard]] Result<Dictionary> attributesOfItem(String path) const {
        const ErrorPointer error;
        return error.result(send<"attributesOfItemAtPath:error:", Dictionary>(path, error.out()));
    }
};

} // namespace ns
