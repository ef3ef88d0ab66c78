// From the stored sizes to new ones, and what follows.
#include "library/toolbox/panel/sizes.hpp"

#include "bindings/foundation/number.hpp"
#include "bindings/uikit/pasteboard.hpp"
#include "bindings/uikit/screen.hpp"
#include "library/preferences/preference_writing.hpp"
#include "library/toolbox/panel/body_layout.hpp"

namespace wentra::toolbox {
namespace {

/// The integer in a number or a text; none in anything else.
std::optional<long long> integer(objc::Object value) {
    const bool readable = value.as<ns::Number>() || value.as<ns::String>();
    return readable ? std::optional(value.assume<ns::Number>().integerValue()) : std::nullopt;
}

void rewritePasteboard() {
    const auto pasteboard = ui::Pasteboard::generalPasteboard();
    // Without a text there is nothing to write: an image stays.
    if (const ns::String text = pasteboard.string(); text) {
        pasteboard.setString(text);
    }
}

} // namespace

void Sizes::begin() {
    current_ = preferences::storedPreferences();
    if (!original_) {
        original_ = ns::MutableDictionary::withDictionary(current_);
    }
    exploded_ = false;
}

LayoutValues Sizes::values() const {
    LayoutValues values;
    for (std::size_t at = 0; at < layoutKeys.size(); ++at) {
        const auto key = ns::String::fromUtf8(layoutKeys[at]);
        values[at] = {integer(current_.get(key)), integer(original_.get(key)).value_or(0)};
    }
    return values;
}

void Sizes::store(const NewLayout& layout) {
    const auto changed = ns::MutableDictionary::withDictionary(current_);
    for (std::size_t at = 0; at < layoutKeys.size(); ++at) {
        if (layout[at]) {
            changed.set(ns::Number::from(*layout[at]), ns::String::fromUtf8(layoutKeys[at]));
        }
    }
    if (preferences::storePreferences(changed)) {
        current_ = changed;
    }
    self().send<"updateViewSize">();
    rewritePasteboard();
}

void Sizes::toggle(objc::Object) { store(toggledLayout(values())); }

void Sizes::shrink(ui::LongPressGestureRecognizer press) {
    if (press.state() != ui::GestureState::began) {
        return;
    }
    const NewLayout layout = shrunkLayout(values());
    if (layout != NewLayout{}) {
        store(layout);
    }
}

void Sizes::resizeGrid() {
    const BodyLayout layout = BodyLayout::from(preferences::Preferences::read());
    tiles_.setFrame(layout.grid(ui::Screen::mainScreen().bounds().size.width));
}

} // namespace wentra::toolbox
