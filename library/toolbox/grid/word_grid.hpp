// The word grid: tiles, what is picked of them and how, and what is counted and done with it.
#pragma once

#include "library/toolbox/grid/picked_text.hpp"
#include "library/toolbox/grid/slide.hpp"
#include "library/toolbox/grid/taps.hpp"
#include "library/toolbox/panel/body_layout.hpp"

namespace wentra::toolbox {

/// The grid's parts, which are parts of the controller.
struct WordGrid {
    WordGrid(FloatingViewController whole, const Buttons& buttons)
        : tiles(whole), selection(whole, tiles), statistics(whole, tiles, selection),
          slide(whole, tiles, selection, statistics),
          taps(whole, tiles, selection, statistics, buttons), pickedText(whole, selection) {}

    static WordGrid& of(objc::Object controller);
    static constexpr auto methods() {
        return objc::join(Tiles::methods(), Selection::methods(), Statistics::methods(),
                          Slide::methods(), Taps::methods(), PickedText::methods());
    }

    /// Puts the grid, empty, and the counts into the controller's view.
    void add(const BodyLayout& layout, double screenWidth);

    Tiles tiles;
    Selection selection;
    Statistics statistics;
    Slide slide;
    Taps taps;
    PickedText pickedText;
};

} // namespace wentra::toolbox
