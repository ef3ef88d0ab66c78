// The text of a text view before it is coloured.
#pragma once

#include "bindings/uikit/text_attributes.hpp"
#include "bindings/uikit/text_view.hpp"

namespace wentra::files {

/// The attributes of text in the view's font and, unless it is nil, that colour.
[[nodiscard]] inline ns::Dictionary plainAttributes(ui::TextView view, ui::Color color) {
    const auto attributes = ns::MutableDictionary::make();
    attributes.set(view.font(), ui::attributes::font());
    if (color) {
        attributes.set(color, ui::attributes::foregroundColor());
    }
    // One that does not change is kept as it is, wherever text gets it.
    return objc::Copied<ns::Dictionary>(attributes).autoreleased();
}

/// A copy of the view's text with these attributes; nothing else of its look is left.
[[nodiscard]] inline ns::MutableAttributedString plainText(ui::TextView view,
                                                           ui::Color color = nullptr) {
    return ns::MutableAttributedString::make<"initWithString:attributes:">(
        view.text(), plainAttributes(view, color));
}

} // namespace wentra::files
