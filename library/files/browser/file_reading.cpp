// Reads texts of unknown encoding.
#include "library/files/browser/file_reading.hpp"

#include "bindings/foundation/log.hpp"
#include "library/common/text_encoding.hpp"
#include "library/files/regular_file.hpp"

#include <array>
#include <sys/stat.h>

namespace wentra::files {
namespace {

ns::String decoded(std::string_view bytes) {
    using enum ns::StringEncoding;
    for (const ns::StringEncoding encoding : {utf8, ascii, japaneseEuc}) {
        if (const auto text = ns::String::from(bytes, encoding); text) {
            return text;
        }
    }
    ns::log("无法确定数据的编码");
    return nullptr;
}

} // namespace

bool isFolder(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

ns::Url urlOf(const std::string& path) {
    constexpr bool isDirectory = false;
    return isUtf8(path) ? ns::Url::fileUrlWithPath(ns::String::fromUtf8(path), isDirectory)
                        : ns::Url();
}

ns::String textOfFile(ns::Url url) {
    auto bytes = readFile(url.path().utf8());
    if (!bytes) {
        ns::log("无法从中读取数据 " + ns::description(url).utf8());
        return nullptr;
    }
    // Most texts are ASCII, which a string can keep as it has been read.
    return isAscii(bytes->view()) ? ns::String::takingAscii(bytes->memory.release(), bytes->count)
                                  : decoded(bytes->view());
}

} // namespace wentra::files
