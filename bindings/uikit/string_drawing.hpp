// NSString's measuring, as UIKit adds it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/objc/options.hpp"
#include "bindings/uikit/font.hpp"
#include "bindings/uikit/text_attributes.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

/// How text is measured; the platform's bits.
enum class StringDrawingOptions : unsigned long {
    usesLineFragmentOrigin = 1U << 0U, ///< in as many lines as it takes
    usesFontLeading = 1U << 1U,
};
constexpr bool areOptions(StringDrawingOptions) { return true; }

/// The size of the text set in lines in a room of that size; nil stands for the standard font.
inline CGSize textSize(ns::String text, CGSize room, Font font) {
    constexpr StringDrawingOptions options =
        StringDrawingOptions::usesLineFragmentOrigin | StringDrawingOptions::usesFontLeading;
    const auto look = font ? ns::Dictionary::withObject(font, attributes::font()) : nullptr;
    const objc::Object context;
    return text
        .send<"boundingRectWithSize:options:attributes:context:", CGRect>(room, options, look,
                                                                          context)
        .size;
}

} // namespace ui
