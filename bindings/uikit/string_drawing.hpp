// NSString's measuring, as UIKit adds it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/dictionary.hpp"
#include "bindings/uikit/font.hpp"

namespace ui {

/// How text is measured; the platform's bits.
namespace string_drawing {
inline constexpr unsigned long usesLineFragmentOrigin = 1U << 0U; ///< in as many lines as it takes
inline constexpr unsigned long usesFontLeading = 1U << 1U;
} // namespace string_drawing

/// The size of the text set in lines in a room of that size; nil stands for the standard font.
inline CGSize textSize(ns::String text, CGSize room, Font font) {
    using namespace ns::literals;
    constexpr unsigned long options =
        string_drawing::usesLineFragmentOrigin | string_drawing::usesFontLeading;
    const auto attributes = font ? ns::Dictionary::with(font, u"NSFont"_ns) : nullptr;
    const objc::Object context;
    return text
        .send<"boundingRectWithSize:options:attributes:context:", CGRect>(room, options, attributes,
                                                                          context)
        .size;
}

} // namespace ui
