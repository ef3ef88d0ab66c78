// Putting the word grid together.
#include "library/toolbox/grid/word_grid.hpp"

namespace wentra::toolbox {

Tiles& Tiles::of(objc::Object controller) { return WordGrid::of(controller).tiles; }
Selection& Selection::of(objc::Object controller) { return WordGrid::of(controller).selection; }
Statistics& Statistics::of(objc::Object controller) { return WordGrid::of(controller).statistics; }
Slide& Slide::of(objc::Object controller) { return WordGrid::of(controller).slide; }
Taps& Taps::of(objc::Object controller) { return WordGrid::of(controller).taps; }
PickedText& PickedText::of(objc::Object controller) { return WordGrid::of(controller).pickedText; }

void WordGrid::add(const BodyLayout& layout, double screenWidth) {
    selection.begin();
    taps.begin();
    tiles.add(layout.grid(screenWidth), layout.gridShade);
    slide.watch(tiles.view());
    statistics.add(layout.totalsTop, layout.selectionsTop);
}

} // namespace wentra::toolbox
