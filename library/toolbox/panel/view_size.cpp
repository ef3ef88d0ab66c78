// From the stored sizes to new ones, and what follows.
#include "library/toolbox/panel/view_size.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "library/startup/preference_writing.hpp"
#include "library/toolbox/floating_view_controller.hpp"
#include "library/toolbox/panel/body_layout.hpp"
#include "library/toolbox/panel/layout_values.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

/// The integer in a number or a text; none in anything else.
std::optional<long long> integer(objc::Object value) {
    const bool readable = value.as<ns::Number>() || value.as<ns::String>();
    return readable ? std::optional(value.assume<ns::Number>().integerValue()) : std::nullopt;
}

LayoutValues layoutOf(FloatingViewController controller) {
    LayoutValues values;
    for (std::size_t at = 0; at < layoutKeys.size(); ++at) {
        const auto key = ns::String::fromUtf8(layoutKeys[at]);
        values[at] = {integer(controller.currentValues().get(key)),
                      integer(controller.originalValues().get(key)).value_or(0)};
    }
    return values;
}

void rewritePasteboard() {
    const auto pasteboard = ui::Pasteboard::general();
    // Without a text there is nothing to write: an image stays.
    if (const ns::String text = pasteboard.string(); text) {
        pasteboard.setString(text);
    }
}

void take(FloatingViewController controller, const NewLayout& layout) {
    const ns::MutableDictionary preferences = controller.currentValues();
    for (std::size_t at = 0; at < layoutKeys.size(); ++at) {
        if (layout[at]) {
            preferences.set(ns::Number::from(*layout[at]), ns::String::fromUtf8(layoutKeys[at]));
        }
    }
    startup::storePreferences(preferences);
    controller.updateViewSize();
    rewritePasteboard();
}

void toggle(FloatingViewController controller, objc::Object) {
    take(controller, toggledLayout(layoutOf(controller)));
}

void shrink(FloatingViewController controller, ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const NewLayout layout = shrunkLayout(layoutOf(controller));
    if (layout != NewLayout{}) {
        take(controller, layout);
    }
}

void resizeGrid(FloatingViewController controller) {
    const BodyLayout layout = BodyLayout::from(startup::Preferences::read());
    const ui::CollectionView grid = controller.wordsCollectionView();
    grid.setFrame(layout.grid(ui::Screen::main().bounds().size.width));
    grid.setNeedsLayout();
    grid.layoutIfNeeded();
}

} // namespace

std::span<const objc::Change> viewSizeCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "explodeButtonClicked:", &toggle>(),
        objc::addition<"ZKFloatingViewController", "qxhandleLongPress:", &shrink>(),
        objc::addition<"ZKFloatingViewController", "updateViewSize", &resizeGrid>(),
    };
    return changes;
}

} // namespace wentra::toolbox
