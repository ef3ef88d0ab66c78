// Reading panes, and looking for them.
#include "desktop/host/apps/panes/pane_list.hpp"

#include "bindings/foundation/array.hpp"

#include <algorithm>

namespace desktop::host {
namespace {

using namespace ns::literals;
namespace fs = std::filesystem;

constexpr std::array folders{"/Library/PreferenceLoader/Preferences",
                             "/var/jb/Library/PreferenceLoader/Preferences"};

ns::String asString(const fs::path& path) { return ns::String::fromUtf8(path.string()); }

/// A group is a row that begins a section.
std::vector<PaneSection> sectionsOf(ns::Array items) {
    std::vector<PaneSection> sections;
    for (const objc::Object item : items) {
        const auto entry = item.as<ns::Dictionary>();
        if (!entry) {
            continue;
        }
        const PaneRow row(entry);
        const bool isGroup = row.isCell(u"PSGroupCell"_ns);
        if (isGroup) {
            sections.push_back({row.text(u"label"_ns), row.text(u"footerText"_ns), {}});
        } else if (sections.empty()) {
            sections.emplace_back();
        }
        if (!isGroup) {
            sections.back().rows.push_back(row);
        }
    }
    return sections;
}

std::vector<fs::path> listsBelow(const fs::path& folder) {
    std::vector<fs::path> lists;
    std::error_code unreadable;
    for (auto entry = fs::recursive_directory_iterator(folder, unreadable);
         entry != fs::recursive_directory_iterator(); entry.increment(unreadable)) {
        if (entry->path().extension() == ".plist") {
            lists.push_back(entry->path());
        }
    }
    std::ranges::sort(lists);
    return lists;
}

} // namespace

bool PaneRow::isCell(ns::String cell) const {
    const ns::String own = text(u"cell"_ns);
    return own && own.isEqual(cell);
}

std::optional<Pane> readPane(const fs::path& file) {
    const auto list = ns::Dictionary::withContentsOfFile(asString(file));
    const auto items = list ? list.get(u"items"_ns).as<ns::Array>() : ns::Array();
    if (!items) {
        return std::nullopt;
    }
    return Pane{list.get(u"title"_ns).as<ns::String>(), file.parent_path(), sectionsOf(items)};
}

std::vector<PaneEntry> paneEntries() {
    std::vector<PaneEntry> entries;
    for (const char* folder : folders) {
        for (const fs::path& file : listsBelow(folder)) {
            const auto list = ns::Dictionary::withContentsOfFile(asString(file));
            if (const auto entry = list.get(u"entry"_ns).as<ns::Dictionary>(); entry) {
                entries.push_back({PaneRow(entry), file});
            }
        }
    }
    return entries;
}

ui::Image rowPicture(const PaneRow& row, const fs::path& folder) {
    const ns::String name = row.text(u"icon"_ns);
    return name ? ui::Image::withContentsOfFile(asString(folder / name.utf8())) : ui::Image();
}

} // namespace desktop::host
