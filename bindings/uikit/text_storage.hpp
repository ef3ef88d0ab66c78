// NSTextStorage, NSTextContainer and NSLayoutManager: the text of a text view, and where it lies.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/uikit/text_attributes.hpp"

namespace ui {

/// A text view's text: what changes here changes in the view.
struct TextStorage : objc::Kind<TextStorage, "NSTextStorage", ns::MutableAttributedString> {
    using Kind::Kind;
};

struct TextContainer : objc::Kind<TextContainer, "NSTextContainer"> {
    using Kind::Kind;

    /// Points that stay free at both ends of each line.
    [[nodiscard]] double lineFragmentPadding() const {
        return send<"lineFragmentPadding", double>();
    }
};

struct LayoutManager : objc::Kind<LayoutManager, "NSLayoutManager"> {
    using Kind::Kind;

    /// The smallest rectangle around the glyphs, in the container's coordinates.
    [[nodiscard]] CGRect boundingRect(ns::Range glyphs, TextContainer container) const {
        return send<"boundingRectForGlyphRange:inTextContainer:", CGRect>(glyphs, container);
    }
};

} // namespace ui
