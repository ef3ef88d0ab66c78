// From a tap to a tile, and from one button to every tile.
#include "library/toolbox/grid/taps.hpp"

#include "bindings/dispatch/dispatch.hpp"
#include "bindings/objc/pool.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr bool notAnimated = false;

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

} // namespace

void Taps::tapped(ui::CollectionView, ns::IndexPath path) {
    selection_.pick(path, PickedBy::tap);
    statistics_.update();
}

void Taps::untapped(ui::CollectionView, ns::IndexPath path) {
    selection_.unpick(path);
    statistics_.update();
}

void Taps::toggleAll(objc::Object) {
    dispatch::async(dispatch::globalQueue(), [this, keptAlive = objc::Strong(self()),
                                              grid = objc::Strong(tiles_.view())] {
        const objc::Pool pool;
        const objc::Strong<ns::Array> paths = allPaths(grid);
        dispatch::async(dispatch::mainQueue(), [this, keptAlive, paths] { toggle(paths); });
    });
}

void Taps::toggle(ns::Array paths) {
    // Only the paths are collected in the background: everything else that the controller keeps
    // belongs to the main thread.
    selection_.forgetTokens();
    const bool all = !allPicked_;
    all ? pickAll(paths) : unpickAll(paths);
    statistics_.update();
    allPicked_ = all;
    buttons_.selectAll().setTitle(all ? u"取消全选"_ns : u"全选文字"_ns, ui::ControlState::normal);
}

void Taps::pickAll(ns::Array paths) {
    constexpr auto withoutScrolling = ui::CollectionViewScrollPosition::none;
    for (const objc::Object each : paths) {
        const auto path = each.assume<ns::IndexPath>();
        // The text may have become shorter since the paths were collected.
        if (tiles_.tokenAt(path)) {
            tiles_.view().selectItem(path, notAnimated, withoutScrolling);
            selection_.pick(path, PickedBy::tap);
        }
    }
}

void Taps::unpickAll(ns::Array paths) {
    const ui::CollectionView grid = tiles_.view();
    grid.setDelegate(nullptr);
    for (const objc::Object path : paths) {
        grid.deselectItem(path.assume<ns::IndexPath>(), notAnimated);
    }
    grid.setDelegate(self());
    selection_.unpickAll(paths);
}

} // namespace wentra::toolbox
