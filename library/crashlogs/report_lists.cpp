// Searching, walking into folders, taking entries out.
#include "library/crashlogs/report_lists.hpp"

#include "bindings/foundation/log.hpp"
#include "library/crashlogs/report_folder.hpp"

#include <algorithm>
#include <functional>

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

bool isNamed(const ReportEntry& entry, ns::String sought) {
    const ns::String name = entry.name();
    return name && name.rangeOf(sought,
                                ns::StringCompareOptions::caseInsensitive |
                                    ns::StringCompareOptions::diacriticInsensitive,
                                {0, name.length()});
}

ns::Array copyOf(ns::Array list) { return list ? list.copied() : ns::MutableArray::make(); }

} // namespace

void ReportLists::begin() {
    searched_ = copyOf(shown_);
    shown_ = copyOf(all_);
}

void ReportLists::search(ui::SearchController search) {
    const ns::String sought = search.searchBar().text();
    if (sought.length() == 0) {
        shown_ = copyOf(searched_);
    } else {
        const auto found = ns::MutableArray::make();
        for (const objc::Object entry : static_cast<ns::Array>(searched_)) {
            if (isNamed(ReportEntry::of(entry), sought)) {
                found.add(entry);
            }
        }
        shown_ = found;
    }
    reload();
}

void ReportLists::walkInto(ns::Url folder) {
    self().send<"setCurrentURL:">(folder);
    self().send<"reloadFiles">();
}

void ReportLists::readFolder() {
    const auto [entries, error] = entriesIn(folder_.path());
    if (error) {
        ns::log("获取文件列表出错: " + ns::description(error).utf8());
        return;
    }
    shown_ = entries;
    reload();
}

void ReportLists::remove(std::vector<unsigned long> rows) {
    std::ranges::sort(rows, std::ranges::greater());
    for (const unsigned long row : rows) {
        if (row < all_.count()) {
            all_.removeAt(row);
        }
    }
    shown_ = copyOf(all_);
    searched_ = copyOf(all_);
}

} // namespace wentra::crashlogs
