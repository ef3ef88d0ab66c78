// From one button to every tile.
#include "library/toolbox/grid/select_all.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/objc/pool.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/grid/statistics.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr bool animated = false;

/// The paths of all items of all sections. Any thread.
ns::MutableArray allPaths(ui::CollectionView grid) {
    const auto paths = ns::MutableArray::make();
    for (long section = 0; section < grid.numberOfSections(); ++section) {
        const long items = grid.numberOfItems(section);
        for (long item = 0; item < items; ++item) {
            paths.add(ns::IndexPath::forItem(item, section));
        }
    }
    return paths;
}

void selectAll(FloatingViewController controller, ns::Array paths) {
    constexpr unsigned long withoutScrolling = 0;
    for (const objc::Object each : paths) {
        const auto path = each.assume<ns::IndexPath>();
        // The text may have become shorter since the paths were collected.
        if (tokenAt(controller, path)) {
            controller.wordsCollectionView().select(path, animated, withoutScrolling);
            pick(controller, path, PickedBy::tap);
        }
    }
}

void selectNone(FloatingViewController controller, ns::Array paths) {
    const ui::CollectionView grid = controller.wordsCollectionView();
    grid.setDelegate(nullptr);
    for (const objc::Object each : paths) {
        grid.deselect(each.assume<ns::IndexPath>(), animated);
    }
    grid.setDelegate(controller);
    for (const objc::Object each : paths) {
        unpick(controller, each.assume<ns::IndexPath>());
    }
}

void toggle(FloatingViewController controller, ns::Array paths) {
    // Only the paths are collected in the background: everything else that the controller keeps
    // belongs to the main thread.
    controller.selectedWords().removeAll();
    const bool all = !controller.isAllSelected();
    (all ? selectAll : selectNone)(controller, paths);
    updateStatistics(controller);
    controller.setIsAllSelected(all);
    controller.selectAllButton().setTitle(all ? u"取消全选"_ns : u"全选文字"_ns,
                                          ui::control_state::normal);
}

void clicked(FloatingViewController controller, objc::Object) {
    dispatch::async(dispatch::globalQueue(), [kept = objc::Strong(controller)] {
        const objc::Pool pool;
        const objc::Strong<ns::Array> paths = allPaths(kept.wordsCollectionView());
        dispatch::async(dispatch::mainQueue(), [kept, paths] { toggle(kept, paths); });
    });
}

} // namespace

std::span<const objc::Change> selectAllCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "selectAllButtonClicked:", &clicked>(),
    };
    return changes;
}

} // namespace wentra::toolbox
