// NSTextStorage: the text of a text view.
#pragma once

#include "bindings/uikit/text_attributes.hpp"

namespace ui {

/// A text view's text: what changes here changes in the view.
struct TextStorage : objc::Kind<TextStorage, "NSTextStorage", ns::MutableAttributedString> {
    using Kind::Kind;
};

} // namespace ui
