// The folder tells the kinds of what it holds, so that hardly an entry is looked at.
#include "desktop/foundation/folder_listing.hpp"

#include "bindings/foundation/file_manager.hpp"
#include "bindings/objc/hook.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/foundation/file_error.hpp"
#include "desktop/foundation/percent_encoding.hpp"
#include "desktop/foundation/url.hpp"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace desktop::foundation {
namespace {

class Folder {
public:
    explicit Folder(ns::Url url) : Folder(filePath(url)) {}

    explicit operator bool() const { return entries_ != nullptr; }
    /// Null after the last one, and where reading fails, of which errno tells.
    [[nodiscard]] const dirent* next() const {
        errno = 0;
        return readdir(entries_.get());
    }
    [[nodiscard]] ns::Url urlOf(const dirent& entry) const {
        return urlWithText(url_ + percentEncodedPath(entry.d_name) + (isFolder(entry) ? "/" : ""));
    }

private:
    explicit Folder(const std::string& path)
        : url_(fileUrlText(path.ends_with('/') ? path : path + '/')),
          entries_(opendir(path.c_str()), &closedir) {}
    [[nodiscard]] bool isFolder(const dirent& entry) const {
        struct stat status {};
        return entry.d_type == DT_DIR ||
               (entry.d_type == DT_UNKNOWN &&
                fstatat(dirfd(entries_.get()), entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                S_ISDIR(status.st_mode));
    }

    std::string url_;
    std::unique_ptr<DIR, int (*)(DIR*)> entries_;
};

bool isText(std::string_view name) {
    constexpr auto isAscii = [](char character) { return character >= 0; };
    return std::ranges::all_of(name, isAscii) || ns::String::fromUtf8(name);
}

bool isListed(std::string_view name, ns::DirectoryEnumerationOptions options) {
    using enum ns::DirectoryEnumerationOptions;
    const bool skipsHidden = (options & skipsHiddenFiles) == skipsHiddenFiles;
    return name != "." && name != ".." && !(skipsHidden && name.starts_with('.')) && isText(name);
}

using Lister = objc::Next<ns::ArrayOf<ns::Url>(ns::Url, ns::ArrayOf<ns::String>,
                                               ns::DirectoryEnumerationOptions, id*)>;
ns::ArrayOf<ns::Url> list(Lister, ns::FileManager, ns::Url url, ns::ArrayOf<ns::String>,
                          ns::DirectoryEnumerationOptions options, id* error) {
    const Folder folder(url);
    if (!folder) {
        report(error, errno);
        return nullptr;
    }
    const auto urls = ns::MutableArray::make();
    while (const dirent* const entry = folder.next()) {
        if (isListed(entry->d_name, options)) {
            urls.add(folder.urlOf(*entry));
        }
    }
    if (errno != 0) {
        report(error, errno);
        return nullptr;
    }
    return urls.assume<ns::ArrayOf<ns::Url>>();
}

} // namespace

void installFolderListing() {
    objc::install(
        objc::hook<"contentsOfDirectoryAtURL:includingPropertiesForKeys:options:error:", &list>());
}

} // namespace desktop::foundation
