// Picking tiles by taps: one at a time, or all of them with a button.
#pragma once

#include "library/toolbox/grid/statistics.hpp"
#include "library/toolbox/panel/buttons.hpp"

namespace wentra::toolbox {

class Taps : public objc::Part<FloatingViewController> {
public:
    Taps(FloatingViewController whole, const Tiles& tiles, Selection& selection,
         Statistics& statistics, const Buttons& buttons)
        : Part(whole), tiles_(tiles), selection_(selection), statistics_(statistics),
          buttons_(buttons) {}
    static Taps& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"isAllSelected", &Taps::allPicked_>(),
            objc::method<"collectionView:didSelectItemAtIndexPath:", &Taps::tapped>(),
            objc::method<"collectionView:didDeselectItemAtIndexPath:", &Taps::untapped>(),
            objc::method<"selectAllButtonClicked:", &Taps::toggleAll>(),
        };
    }

    /// The button picks all tiles next.
    void begin() { allPicked_ = false; }

private:
    void tapped(ui::CollectionView, ns::IndexPath path);
    void untapped(ui::CollectionView, ns::IndexPath path);
    void toggleAll(objc::Object sender);
    void toggle(ns::Array paths);
    void pickAll(ns::Array paths);
    void unpickAll(ns::Array paths);

    const Tiles& tiles_;
    Selection& selection_;
    Statistics& statistics_;
    const Buttons& buttons_;
    bool allPicked_ = false;
};

} // namespace wentra::toolbox
