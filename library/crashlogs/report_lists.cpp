// Searching, walking into folders, taking entries out.
#include "library/crashlogs/report_lists.hpp"

#include "bindings/foundation/log.hpp"
#include "bindings/foundation/predicate.hpp"
#include "library/crashlogs/report_folder.hpp"

namespace wentra::crashlogs {
namespace {

using namespace ns::literals;

/// Whatever the letters' case and accents.
ns::Predicate isNamed(ns::String sought) {
    const auto arguments = ns::MutableArray::make();
    arguments.add(sought);
    return ns::Predicate::withFormat(u"fileURL.lastPathComponent CONTAINS[cd] %@"_ns, arguments);
}

ns::Array copyOf(ns::Array list) { return list ? list.copied() : ns::MutableArray::make(); }

} // namespace

void ReportLists::begin() {
    searched_ = copyOf(shown_);
    shown_ = copyOf(all_);
}

void ReportLists::search(ui::SearchController search) {
    const ns::String sought = search.searchBar().text();
    shown_ = sought.length() == 0 ? copyOf(searched_) : found(sought);
    reload();
}

ns::Array ReportLists::found(ns::String sought) const {
    const ns::Predicate isFound = isNamed(sought);
    const auto found = ns::MutableArray::make();
    for (const objc::Object entry : static_cast<ns::Array>(searched_)) {
        if (isFound.evaluate(entry)) {
            found.add(entry);
        }
    }
    return found;
}

void ReportLists::walkInto(ns::Url folder) {
    self().send<"setCurrentURL:">(folder);
    self().send<"reloadFiles">();
}

void ReportLists::readFolder() {
    if (!folder_) {
        return; // the system raises when it is asked for nothing
    }
    const auto [entries, error] = entriesIn(folder_);
    if (error) {
        ns::log("获取文件列表出错: " + ns::description(error).utf8());
        return;
    }
    shown_ = entries;
    reload();
}

void ReportLists::remove(const std::vector<unsigned long>& rows) {
    std::vector<bool> goes(all_.count());
    for (const unsigned long row : rows) {
        if (row < goes.size()) {
            goes[row] = true;
        }
    }
    for (unsigned long row = goes.size(); row-- > 0;) {
        if (goes[row]) {
            all_.removeAt(row);
        }
    }
    shown_ = copyOf(all_);
    searched_ = copyOf(all_);
}

} // namespace wentra::crashlogs
