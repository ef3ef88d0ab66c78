// NSString's measuring, as UIKit adds it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/uikit/font.hpp"
#include "bindings/uikit/text_attributes.hpp"

namespace ui {

/// How text is measured; the platform's bits.
namespace string_drawing {
inline constexpr unsigned long usesLineFragmentOrigin = 1U << 0U; ///< in as many lines as it takes
inline constexpr unsigned long usesFontLeading = 1U << 1U;
} // namespace string_drawing

/// The size of the text set in lines in a room of that size; nil stands for the standard font.
inline CGSize textSize(ns::String text, CGSize room, Font font) {
    constexpr unsigned long options =
        string_drawing::usesLineFragmentOrigin | string_drawing::usesFontLeading;
    const auto look = font ? ns::Dictionary::with(font, attributes::font()) : nullptr;
    const objc::Object context;
    return text
        .send<"boundingRectWithSize:options:attributes:context:", CGRect>(room, options, look,
                                                                          context)
        .size;
}

} // namespace ui
