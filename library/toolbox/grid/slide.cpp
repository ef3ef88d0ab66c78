// The finger that slides, and what it picks.
#include "library/toolbox/grid/slide.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/grid/slide_step.hpp"
#include "library/toolbox/grid/statistics.hpp"

#include <algorithm>
#include <array>

namespace wentra::toolbox {
namespace {

ns::IndexPath pathOf(long row) { return ns::IndexPath::forItem(row, 0); }

long lastRow(FloatingViewController controller) {
    return static_cast<long>(controller.wordsArray().count()) - 1;
}

void begin(FloatingViewController controller, ns::IndexPath path) {
    controller.setIsSlideSelecting(true);
    controller.setStartIndexPath(path);
    controller.send<"selectItemAtIndexPath:">(path);
}

void move(FloatingViewController controller, ns::IndexPath path) {
    const ns::IndexPath start = controller.startIndexPath();
    if (!start || lastRow(controller) < 0) {
        return;
    }
    // The text may have become shorter since the slide began.
    const long first = std::clamp(start.item(), 0L, lastRow(controller));
    const SlideStep step = slideStep(pickedRows(controller), first, path.item());
    for (const long row : step.picked) {
        pick(controller, pathOf(row), PickedBy::slide);
    }
    if (step.released) {
        unpick(controller, pathOf(*step.released));
    }
    updateStatistics(controller);
}

void end(FloatingViewController controller) {
    controller.setIsSlideSelecting(false);
    controller.setStartIndexPath(nullptr);
}

void slid(FloatingViewController controller, ui::LongPressGestureRecognizer finger) {
    const ui::CollectionView grid = controller.wordsCollectionView();
    const ns::IndexPath path = grid.indexPathAt(finger.locationIn(grid));
    if (!path) {
        return;
    }
    switch (finger.state()) {
    case ui::GestureState::began:
        begin(controller, path);
        break;
    case ui::GestureState::changed:
        move(controller, path);
        break;
    case ui::GestureState::ended:
        end(controller);
        break;
    default:
        break;
    }
}

void selectRange(FloatingViewController controller, ns::IndexPath start, ns::IndexPath end) {
    if (!start || !end) {
        return;
    }
    const long first = std::max(std::min(start.item(), end.item()), 0L);
    const long last = std::min(std::max(start.item(), end.item()), lastRow(controller));
    for (long row = first; row <= last; ++row) {
        if (!pickedRows(controller).contains(row)) {
            pick(controller, pathOf(row), PickedBy::slide);
        }
    }
    updateStatistics(controller);
}

} // namespace

std::span<const objc::Change> slideCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "longPressGestureRecognized:", &slid>(),
        objc::addition<"ZKFloatingViewController",
                       "selectWordsFromStartIndexPath:toEndIndexPath:", &selectRange>(),
    };
    return changes;
}

} // namespace wentra::toolbox
