// Enlarging and shrinking the panel.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/grid/tiles.hpp"
#include "library/toolbox/panel/layout_values.hpp"

namespace wentra::toolbox {

/// The stored sizes, which a button enlarges or gives back and a long press on it shrinks.
class Sizes : public objc::Part<FloatingViewController> {
public:
    Sizes(FloatingViewController whole, Tiles& tiles) : Part(whole), tiles_(tiles) {}
    static Sizes& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"currentValues", &Sizes::current_>(),
            objc::property<"originalValues", &Sizes::original_>(),
            objc::property<"isExploded", &Sizes::exploded_>(),
            objc::method<"explodeButtonClicked:", &Sizes::toggle>(),
            objc::method<"qxhandleLongPress:", &Sizes::shrink>(),
            objc::method<"updateViewSize", &Sizes::resizeGrid>(),
        };
    }

    /// Takes the preferences as they are stored; for the original sizes, the first time only.
    void begin();

private:
    void toggle(objc::Object sender);
    void shrink(ui::LongPressGestureRecognizer press);
    void resizeGrid();
    [[nodiscard]] LayoutValues values() const;
    void store(const NewLayout& layout);

    Tiles& tiles_;
    objc::Strong<ns::MutableDictionary> current_;  // the preferences, with the sizes changed since
    objc::Strong<ns::MutableDictionary> original_; // the preferences when the view was first loaded
    bool exploded_ = false;
};

} // namespace wentra::toolbox
