// The finger that slides, and what it picks.
#include "library/toolbox/grid/slide.hpp"

#include "library/common/gestures.hpp"

#include <algorithm>

namespace wentra::toolbox {
namespace {

ns::IndexPath pathOf(long row) { return ns::IndexPath::forItem(row, 0); }

} // namespace

void Slide::watch(ui::CollectionView grid) {
    constexpr double shortestPress = 0.1; // seconds
    addPress(grid, self(), objc::selector<"longPressGestureRecognized:">(), shortestPress);
}

void Slide::pressed(ui::LongPressGestureRecognizer finger) {
    const ui::CollectionView grid = tiles_.view();
    const ns::IndexPath path = grid.indexPathForItem(finger.locationIn(grid));
    if (!path) {
        return;
    }
    switch (finger.state()) {
    case ui::GestureState::began:
        begin(path);
        break;
    case ui::GestureState::changed:
        move(path);
        break;
    case ui::GestureState::ended:
        end();
        break;
    default:
        break;
    }
}

void Slide::begin(ns::IndexPath path) {
    sliding_ = true;
    start_ = path;
    self().send<"selectItemAtIndexPath:">(path);
}

void Slide::move(ns::IndexPath path) {
    const long last = tiles_.lastRow();
    if (!start_ || last < 0) {
        return;
    }
    // The text may have become shorter since the slide began.
    const long start = std::clamp(start_.item(), 0L, last);
    const long current = path.item();
    pickRows(start, current);
    if (const auto row = selection_.outside(std::min(start, current), std::max(start, current));
        row) {
        selection_.unpick(pathOf(*row));
    }
    statistics_.update();
}

void Slide::end() {
    sliding_ = false;
    start_ = nullptr;
}

void Slide::pickRows(long first, long last) {
    const long step = first <= last ? 1 : -1;
    for (long row = first; row != last + step; row += step) {
        if (const auto path = pathOf(row); !selection_.contains(path)) {
            selection_.pick(path, PickedBy::slide);
        }
    }
}

void Slide::select(ns::IndexPath path) {
    if (path && !selection_.contains(path)) {
        selection_.pick(path, PickedBy::slide);
        statistics_.update();
    }
}

void Slide::deselect(ns::IndexPath path) {
    if (path && selection_.contains(path)) {
        selection_.unpick(path);
        statistics_.update();
    }
}

void Slide::selectRange(ns::IndexPath start, ns::IndexPath end) {
    if (!start || !end) {
        return;
    }
    const long first = std::max(std::min(start.item(), end.item()), 0L);
    const long last = std::min(std::max(start.item(), end.item()), tiles_.lastRow());
    if (first <= last) {
        pickRows(first, last);
    }
    statistics_.update();
}

} // namespace wentra::toolbox
