// Picking a run of tiles by sliding a finger over them.
#pragma once

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/grid/statistics.hpp"

namespace wentra::toolbox {

/// A finger that presses a tile and then slides picks every tile from there to where it is. Of what
/// is picked elsewhere, one tile is released at each movement, so that releasing lags behind.
class Slide : public objc::Part<FloatingViewController> {
public:
    Slide(FloatingViewController whole, const Tiles& tiles, Selection& selection,
          Statistics& statistics)
        : Part(whole), tiles_(tiles), selection_(selection), statistics_(statistics) {}
    static Slide& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"startIndexPath", &Slide::start_>(),
            objc::property<"endIndexPath", &Slide::end_>(),
            objc::property<"isSlideSelecting", &Slide::sliding_>(),
            objc::method<"longPressGestureRecognized:", &Slide::pressed>(),
            objc::method<"selectItemAtIndexPath:", &Slide::select>(),
            objc::method<"deselectItemAtIndexPath:", &Slide::deselect>(),
            objc::method<"selectWordsFromStartIndexPath:toEndIndexPath:", &Slide::selectRange>(),
        };
    }

    /// Follows fingers on the grid.
    void watch(ui::CollectionView grid);

private:
    void pressed(ui::LongPressGestureRecognizer finger);
    void begin(ns::IndexPath path);
    void move(ns::IndexPath path);
    void end();
    void select(ns::IndexPath path);
    void deselect(ns::IndexPath path);
    void selectRange(ns::IndexPath start, ns::IndexPath end);
    /// Picks the rows that are not picked yet, from `first` on; `last` may be above it.
    void pickRows(long first, long last);

    const Tiles& tiles_;
    Selection& selection_;
    Statistics& statistics_;
    objc::Strong<ns::IndexPath> start_; // of the slide in progress
    objc::Strong<ns::IndexPath> end_;
    bool sliding_ = false;
};

} // namespace wentra::toolbox
