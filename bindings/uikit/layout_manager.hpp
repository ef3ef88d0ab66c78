// NSLayoutManager: where text lies.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/range.hpp"
#include "bindings/uikit/text_container.hpp"

namespace ui {

struct LayoutManager : objc::Kind<LayoutManager, "NSLayoutManager"> {
    using Kind::Kind;

    /// The smallest rectangle around the glyphs, in the container's coordinates.
    [[nodiscard]] CGRect boundingRect(ns::Range glyphs, TextContainer container) const {
        return send<"boundingRectForGlyphRange:inTextContainer:", CGRect>(glyphs, container);
    }
};

} // namespace ui
