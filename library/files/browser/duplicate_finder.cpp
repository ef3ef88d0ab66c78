// Scans in the background, reports, removes.
#include "library/files/browser/duplicate_finder.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "library/common/alert.hpp"
#include "library/files/operations/item_changes.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

ns::Number numberOf(std::uint64_t size) {
    return ns::Number::from(static_cast<unsigned long long>(size));
}

ns::MutableArray arrayOf(const SizeGroup& group) {
    const auto array = ns::MutableArray::make();
    const objc::Pool pool;
    for (const std::string& path : group.paths) {
        const auto entry = ns::MutableDictionary::make();
        entry.set(textOf(path), u"path"_ns);
        entry.set(numberOf(group.size), u"size"_ns);
        array.add(entry);
    }
    return array;
}

/// A group that others may have made: what is no entry is left out.
SizeGroup groupOf(objc::Object object) {
    SizeGroup group;
    for (const objc::Object element : object.as<ns::Array>()) {
        const auto entry = element.as<ns::Dictionary>();
        const auto path = entry.get(u"path"_ns).as<ns::String>();
        if (path) {
            const auto size = entry.get(u"size"_ns).as<ns::Number>();
            group.size = group.paths.empty() ? size.unsignedValue() : group.size;
            group.paths.push_back(pathOf(path));
        }
    }
    return group;
}

std::vector<SizeGroup> groupsOf(ns::Array array) {
    std::vector<SizeGroup> groups;
    for (const objc::Object element : array) {
        groups.push_back(groupOf(element));
    }
    return groups;
}

std::vector<SizeGroup> duplicatesIn(const std::string& folder) {
    std::vector<SizeGroup> groups = groupedBySize(folder);
    std::erase_if(groups, [](const SizeGroup& group) { return group.paths.size() < 2; });
    return groups;
}

} // namespace

ns::Dictionary DuplicateFinder::grouped(ns::String folder) const {
    const auto groups = ns::MutableDictionary::make();
    for (const SizeGroup& group : groupedBySize(pathOf(folder))) {
        groups.set(arrayOf(group), numberOf(group.size));
    }
    return groups;
}

void DuplicateFinder::scan(ui::TableView table) {
    dispatch::async(dispatch::globalQueue(),
                    [this, whole = objc::Strong(self()), table = objc::Strong(table),
                     folder = panes_.folder(table)]() mutable {
                        // The controller may end with this: it does so on the main thread.
                        dispatch::async(dispatch::mainQueue(),
                                        [this, whole = std::move(whole), table = std::move(table),
                                         groups = duplicatesIn(folder)] { found(groups, table); });
                    });
}

void DuplicateFinder::found(const std::vector<SizeGroup>& groups, ui::TableView table) {
    if (groups.empty()) {
        Alert(nullptr, u"没有发现重复文件"_ns).action(u"确定"_ns).presentFrom(self());
        return;
    }
    const auto arrays = ns::MutableArray::make();
    for (const SizeGroup& group : groups) {
        arrays.add(arrayOf(group));
    }
    self().send<"presentDuplicatesFoundAlertWithDuplicateFileGroups:onTableView:">(arrays, table);
}

void DuplicateFinder::present(ns::Array groups, ui::TableView /*table*/) {
    const auto cleaning = [this, groups = objc::Strong(groups)](Keeps keeps) {
        return [this, groups, keeps, whole = objc::Strong(self())] { clean(groups, keeps); };
    };
    Alert(u"查重结果"_ns, ns::String::from(duplicateReport(groupsOf(groups))))
        .action(u"保留文件名最长"_ns, cleaning(Keeps::longestName))
        .action(u"保留文件名最短"_ns, cleaning(Keeps::shortestName))
        .action(u"确定"_ns)
        .presentFrom(self());
}

/// A group whose keeper has gone meanwhile is left alone: its others may be all that is left.
void DuplicateFinder::clean(ns::Array groups, Keeps keeps) {
    for (const SizeGroup& group : groupsOf(groups)) {
        if (group.paths.size() < 2) {
            continue;
        }
        const std::string& kept = keeper(group.paths, keeps);
        if (entryExists(kept)) {
            removeAllBut(kept, group.paths);
        }
    }
}

void DuplicateFinder::removeAllBut(const std::string& keeper,
                                   const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        if (path != keeper) {
            static_cast<void>(removeItem(path)); // what is left is shown
            panes_.reload();
        }
    }
}

} // namespace wentra::files
