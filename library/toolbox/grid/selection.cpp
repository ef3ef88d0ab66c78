// The picked tiles, their colours and their tokens.
#include "library/toolbox/grid/selection.hpp"

#include "library/toolbox/grid/statistics.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

ui::Color tapColour() {
    constexpr double alpha = 0.25;
    return ui::Color::rgba(0, 0, 1, alpha);
}

ui::Color slideColour() {
    constexpr double alpha = 0.8;
    return ui::Color::rgba(173 / 255.0, 216 / 255.0, 230 / 255.0, alpha);
}

void colourTile(FloatingViewController controller, ns::IndexPath path, ui::Color colour) {
    controller.wordsCollectionView().cellAt(path).contentView().setBackgroundColor(colour);
}

/// The rows of the set of picked tiles, kept in step with it, so that a slide need not walk
/// through all of it at each movement.
class PickedRows {
public:
    /// In step with that set. Others may empty or replace the set, which its count tells.
    const RowSet& of(ns::MutableSet set) {
        if (set != set_ || set.count() != count_) {
            rows_ = {};
            for (const objc::Object path : set.allObjects()) {
                rows_.insert(path.assume<ns::IndexPath>().item());
            }
            remember(set);
        }
        return rows_;
    }
    void add(ns::MutableSet set, ns::IndexPath path) {
        if (set) {
            of(set);
            set.add(path);
            rows_.insert(path.item());
            remember(set);
        }
    }
    void remove(ns::MutableSet set, ns::IndexPath path) {
        if (set) {
            of(set);
            set.remove(path);
            rows_.erase(path.item());
            remember(set);
        }
    }

private:
    void remember(ns::MutableSet set) {
        set_ = set;
        count_ = set.count();
    }

    objc::Strong<ns::MutableSet> set_;
    unsigned long count_ = 0;
    RowSet rows_;
};

PickedRows& rows() {
    static auto* only = new PickedRows; // lives as long as the process
    return *only;
}

void tapped(FloatingViewController controller, ui::CollectionView, ns::IndexPath path) {
    pick(controller, path, PickedBy::tap);
    updateStatistics(controller);
}

void untapped(FloatingViewController controller, ui::CollectionView, ns::IndexPath path) {
    unpick(controller, path);
    updateStatistics(controller);
}

void select(FloatingViewController controller, ns::IndexPath path) {
    if (path && !controller.selectedIndexPaths().contains(path)) {
        pick(controller, path, PickedBy::slide);
        updateStatistics(controller);
    }
}

void deselect(FloatingViewController controller, ns::IndexPath path) {
    if (path && controller.selectedIndexPaths().contains(path)) {
        unpick(controller, path);
        updateStatistics(controller);
    }
}

} // namespace

ns::String tokenAt(FloatingViewController controller, ns::IndexPath path) {
    const ns::Array words = controller.wordsArray();
    const long row = path && path.section() == 0 ? path.item() : -1;
    const bool there = row >= 0 && static_cast<unsigned long>(row) < words.count();
    return there ? words.at(static_cast<unsigned long>(row)).as<ns::String>() : nullptr;
}

void pick(FloatingViewController controller, ns::IndexPath path, PickedBy gesture) {
    const ns::String token = tokenAt(controller, path);
    if (!token) {
        return;
    }
    colourTile(controller, path, gesture == PickedBy::tap ? tapColour() : slideColour());
    controller.setSelectedString(token);
    controller.selectedWords().add(token);
    rows().add(controller.selectedIndexPaths(), path);
}

void unpick(FloatingViewController controller, ns::IndexPath path) {
    if (!path) {
        return;
    }
    colourTile(controller, path, ui::Color::white());
    if (const ns::String token = tokenAt(controller, path); token) {
        controller.selectedWords().removeEqual(token);
    }
    rows().remove(controller.selectedIndexPaths(), path);
}

const RowSet& pickedRows(FloatingViewController controller) {
    return rows().of(controller.selectedIndexPaths());
}

std::span<const objc::Change> selectionCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController",
                       "collectionView:didSelectItemAtIndexPath:", &tapped>(),
        objc::addition<"ZKFloatingViewController",
                       "collectionView:didDeselectItemAtIndexPath:", &untapped>(),
        objc::addition<"ZKFloatingViewController", "selectItemAtIndexPath:", &select>(),
        objc::addition<"ZKFloatingViewController", "deselectItemAtIndexPath:", &deselect>(),
    };
    return changes;
}

} // namespace wentra::toolbox
