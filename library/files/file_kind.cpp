// The tables of extensions, as users know them: "rmv" and "e4a" included.
#include "library/files/file_kind.hpp"

#include "library/files/file_path.hpp"

#include <algorithm>
#include <array>

namespace wentra::files {
namespace {

struct IconRow {
    std::string_view kind;
    std::string_view icon;
};

constexpr std::array iconRows{
    IconRow{"", "weizhi_icon.png"},       IconRow{"jpg", "image_icon.png"},
    IconRow{"png", "image_icon.png"},     IconRow{"jpeg", "image_icon.png"},
    IconRow{"bmp", "image_icon.png"},     IconRow{"gif", "image_icon.png"},
    IconRow{"dylib", "text_icon.png"},    IconRow{"ips", "text_icon.png"},
    IconRow{"plist", "plist_icon.png"},   IconRow{"json", "plist_icon.png"},
    IconRow{"strings", "plist_icon.png"}, IconRow{"xml", "plist_icon.png"},
    IconRow{"html", "plist_icon.png"},    IconRow{"mp4", "video_icon.png"},
    IconRow{"avi", "video_icon.png"},     IconRow{"rmv", "video_icon.png"},
    IconRow{"mov", "video_icon.png"},     IconRow{"flv", "video_icon.png"},
    IconRow{"txt", "txt_icon.png"},       IconRow{"zip", "zip_icon.png"},
    IconRow{"rar", "zip_icon.png"},       IconRow{"deb", "deb_icon.png"},
    IconRow{"ipa", "ipa_icon.png"},       IconRow{"mp3", "music_icon.png"},
    IconRow{"e4a", "music_icon.png"},     IconRow{"wav", "music_icon.png"},
    IconRow{"flac", "music_icon.png"},    IconRow{"ogg", "music_icon.png"},
    IconRow{"amr", "music_icon.png"},     IconRow{"aac", "music_icon.png"},
    IconRow{"pdf", "pdf_icon.png"},
};

constexpr std::array<std::string_view, 3> imageKinds{"jpg", "jpeg", "png"};
constexpr std::array<std::string_view, 6> textKinds{"plist", "txt", "json", "xml", "m", "h"};

} // namespace

std::string_view iconOf(std::string_view path) {
    const auto* const row = std::ranges::find(iconRows, kindOf(path), &IconRow::kind);
    return row == iconRows.end() ? std::string_view() : row->icon;
}

bool isImage(std::string_view path) {
    return std::ranges::find(imageKinds, kindOf(path)) != imageKinds.end();
}

bool isText(std::string_view path) {
    return std::ranges::find(textKinds, kindOf(path)) != textKinds.end();
}

} // namespace wentra::files
