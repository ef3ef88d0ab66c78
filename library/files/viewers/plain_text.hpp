// The text of a text view before it is coloured.
#pragma once

#include "bindings/uikit/text_attributes.hpp"
#include "bindings/uikit/text_view.hpp"

namespace wentra::files {

/// A copy of the view's text in the view's font and, unless it is nil, that colour; nothing else of
/// its look is left.
[[nodiscard]] inline ns::MutableAttributedString plainText(ui::TextView view,
                                                           ui::Color color = nullptr) {
    const auto attributes = ns::MutableDictionary::make();
    attributes.set(view.font(), ui::attributes::font());
    if (color) {
        attributes.set(color, ui::attributes::foregroundColor());
    }
    return ns::MutableAttributedString::make<"initWithString:attributes:">(view.text(), attributes);
}

} // namespace wentra::files
