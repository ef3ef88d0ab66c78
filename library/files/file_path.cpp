// Takes paths apart and puts them together.
#include "library/files/file_path.hpp"

#include "library/common/surrogates.hpp"
#include "library/common/text_encoding.hpp"
#include "library/common/utf8_character.hpp"

#include <algorithm>

namespace wentra::files {
namespace {

constexpr char16_t escapes = 0xDC00;

bool isEscape(char16_t unit) { return unit >= escapes + 0x80 && unit <= escapes + 0xFF; }

std::string_view withoutSlashes(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/')) {
        path.remove_suffix(1);
    }
    return path;
}

} // namespace

std::u16string textOfPath(std::string_view path) {
    if (isAscii(path)) {
        return {path.begin(), path.end()};
    }
    std::u16string text;
    while (!path.empty()) {
        const std::size_t size = decodeUtf8(path).size;
        if (size == 0) {
            text.push_back(static_cast<char16_t>(escapes + static_cast<unsigned char>(path[0])));
        } else {
            text.append(utf16FromUtf8(path.substr(0, size)));
        }
        path.remove_prefix(std::max<std::size_t>(size, 1));
    }
    return text;
}

std::string pathOfText(std::u16string_view text) {
    std::string path;
    path.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t next = index + 1 < text.size() ? text[index + 1] : u'\0';
        const bool isPair = isSurrogatePair(text[index], next);
        if (text[index] == u'\0') {
            return {};
        }
        if (isEscape(text[index])) {
            path.push_back(static_cast<char>(text[index] - escapes));
        } else {
            path.append(utf8FromUtf16(text.substr(index, isPair ? 2 : 1)));
        }
        index += isPair ? 1 : 0;
    }
    return path;
}

std::string joined(std::string_view folder, std::string_view name) {
    folder = withoutSlashes(folder);
    std::string path;
    if (folder.empty()) {
        return path;
    }
    path.reserve(folder.size() + 1 + name.size());
    path.append(folder);
    if (folder != "/") {
        path.push_back('/');
    }
    return path.append(name);
}

std::string_view lastComponent(std::string_view path) {
    path = withoutSlashes(path);
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

std::string_view parentOf(std::string_view path) {
    path = withoutSlashes(path);
    const std::size_t slash = path.rfind('/');
    return slash == path.npos ? std::string_view() : withoutSlashes(path.substr(0, slash + 1));
}

std::string_view extensionOf(std::string_view path) {
    const std::string_view name = lastComponent(path);
    const std::size_t stop = name.rfind('.');
    return stop == name.npos || stop == 0 ? std::string_view() : name.substr(stop + 1);
}

std::string kindOf(std::string_view path) {
    std::string kind(extensionOf(path));
    std::ranges::transform(kind, kind.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return kind;
}

std::string_view baseOf(std::string_view path) {
    const std::string_view name = lastComponent(path);
    const std::string_view extension = extensionOf(path);
    return extension.empty() ? name : name.substr(0, name.size() - extension.size() - 1);
}

} // namespace wentra::files
