// The table of the page's files.
#include "desktop/viewer/page_files.hpp"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace desktop::viewer {
namespace {

constexpr const char* script = "text/javascript; charset=utf-8";

struct PageFile {
    std::string_view name;
    const char* file;
    const char* type;
};

constexpr std::array files{
    PageFile{"", "index.html", "text/html; charset=utf-8"},
    PageFile{"page.css", "page.css", "text/css; charset=utf-8"},
    PageFile{"stand_in.css", "stand_in.css", "text/css; charset=utf-8"},
    PageFile{"icon.svg", "icon.svg", "image/svg+xml"},
    PageFile{"preferences.json", "../../../settings/preferences.json", "application/json"},
    PageFile{"main.js", "main.js", script},
    PageFile{"clipboard.js", "clipboard.js", script},
    PageFile{"connection.js", "connection.js", script},
    PageFile{"device.js", "device.js", script},
    PageFile{"element.js", "element.js", script},
    PageFile{"films.js", "films.js", script},
    PageFile{"fingers.js", "fingers.js", script},
    PageFile{"help.js", "help.js", script},
    PageFile{"holding.js", "holding.js", script},
    PageFile{"inspector.js", "inspector.js", script},
    PageFile{"key_combinations.js", "key_combinations.js", script},
    PageFile{"keyboard.js", "keyboard.js", script},
    PageFile{"menu.js", "menu.js", script},
    PageFile{"news.js", "news.js", script},
    PageFile{"opened_urls.js", "opened_urls.js", script},
    PageFile{"over_screen.js", "over_screen.js", script},
    PageFile{"recording.js", "recording.js", script},
    PageFile{"rule_editor.js", "rule_editor.js", script},
    PageFile{"screen.js", "screen.js", script},
    PageFile{"script.js", "script.js", script},
    PageFile{"sounds.js", "sounds.js", script},
    PageFile{"stored_rules.js", "stored_rules.js", script},
    PageFile{"unpack.js", "unpack.js", script},
    PageFile{"veil.js", "veil.js", script},
    PageFile{"web_page_row.js", "web_page_row.js", script},
    PageFile{"web_pages.js", "web_pages.js", script},
    PageFile{"words.js", "words.js", script},
    PageFile{"panels/applications.js", "panels/applications.js", script},
    PageFile{"panels/device.js", "panels/device.js", script},
    PageFile{"panels/events.js", "panels/events.js", script},
    PageFile{"panels/microphone.js", "panels/microphone.js", script},
    PageFile{"panels/pasteboard.js", "panels/pasteboard.js", script},
    PageFile{"panels/preferences.js", "panels/preferences.js", script},
    PageFile{"panels/rules.js", "panels/rules.js", script},
};

} // namespace

std::optional<Answer> pageFile(std::string_view name) {
    const auto* found = std::ranges::find(files, name, &PageFile::name);
    if (found == files.end()) {
        return std::nullopt;
    }
    std::ifstream stream(std::filesystem::path(WENTRA_PAGE_FOLDER) / found->file, std::ios::binary);
    if (!stream) {
        constexpr unsigned serverError = 500;
        return Answer{serverError, "text/plain", std::string("cannot read ") + found->file + "\n"};
    }
    return Answer{200, found->type, {std::istreambuf_iterator(stream), {}}};
}

Answer noSuchFile() {
    constexpr unsigned notFound = 404;
    return {notFound, "text/plain", "there is no such file\n"};
}

} // namespace desktop::viewer
