// The cells of a list: those that are shown, and those that wait to be used again.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/view.hpp"
#include "desktop/uikit/lists/item_index.hpp"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace desktop {

/// Cells answer "reuseIdentifier" and "prepareForReuse". Main thread.
template <class Kind>
class CellStore {
public:
    using Cell = objc::Strong<Kind>;

    void registerClass(Class cls, ns::String identifier) { classes_[identifier.utf16()] = cls; }
    /// Null when none is registered.
    [[nodiscard]] Class classFor(ns::String identifier) const {
        const auto found = classes_.find(identifier.utf16());
        return found != classes_.end() ? found->second : nullptr;
    }
    /// A cell that waits to be used again, prepared; nil when there is none.
    Cell takeUnused(ns::String identifier) {
        auto& waiting = unused_[identifier.utf16()];
        if (waiting.empty()) {
            return nullptr;
        }
        Cell cell = std::move(waiting.back());
        waiting.pop_back();
        cell.template send<"prepareForReuse">();
        return cell;
    }

    [[nodiscard]] const std::map<ItemIndex, Cell>& shown() const { return shown_; }
    /// Nil for items that are not shown.
    [[nodiscard]] Kind at(ItemIndex index) const {
        const auto found = shown_.find(index);
        return found != shown_.end() ? static_cast<Kind>(found->second) : Kind();
    }
    /// The item whose cell the view is, or lies in; `list` is what the cells are in.
    [[nodiscard]] std::optional<ItemIndex> itemOf(ui::View view, ui::View list) const {
        while (view && view.superview() != list) {
            view = view.superview();
        }
        for (const auto& [index, cell] : shown_) {
            if (view && cell == view) {
                return index;
            }
        }
        return std::nullopt;
    }
    void show(ItemIndex index, Kind cell) { shown_[index] = cell; }
    /// Takes the item's cell out of its list, to be used again; nil when it is not shown.
    Cell putAway(ItemIndex index) {
        const auto found = shown_.find(index);
        if (found == shown_.end()) {
            return nullptr;
        }
        const Cell cell = found->second;
        shown_.erase(found);
        cell.removeFromSuperview();
        if (const auto name = cell.template send<"reuseIdentifier", ns::String>(); name) {
            unused_[name.utf16()].push_back(cell);
        }
        return cell;
    }

    [[nodiscard]] ns::Array cells() const {
        const auto list = ns::MutableArray::make();
        for (const auto& [index, cell] : shown_) {
            list.add(cell);
        }
        return list;
    }
    [[nodiscard]] ns::Array paths() const {
        const auto list = ns::MutableArray::make();
        for (const auto& [index, cell] : shown_) {
            list.add(index.path());
        }
        return list;
    }

private:
    std::map<std::u16string, Class> classes_;
    std::map<std::u16string, std::vector<Cell>> unused_;
    std::map<ItemIndex, Cell> shown_;
};

/// Index paths as plain values.
[[nodiscard]] inline std::set<ItemIndex> indexesOf(ns::Array paths) {
    std::set<ItemIndex> indexes;
    for (const objc::Object path : paths) {
        indexes.insert(ItemIndex::of(path.assume<ns::IndexPath>()));
    }
    return indexes;
}

} // namespace desktop
