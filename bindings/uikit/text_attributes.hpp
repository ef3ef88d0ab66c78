// The names of a text's attributes, as running phones know them, and how fonts and colours go in.
#pragma once

#include "bindings/foundation/attributed_string.hpp"

namespace ui::attributes {

using namespace ns::literals;

/// NSFontAttributeName: a UIFont.
inline ns::String font() { return u"NSFont"_ns; }
/// NSForegroundColorAttributeName, NSBackgroundColorAttributeName: a UIColor.
inline ns::String foregroundColor() { return u"NSColor"_ns; }
inline ns::String backgroundColor() { return u"NSBackgroundColor"_ns; }
/// NSUnderlineStyleAttributeName, NSStrikethroughStyleAttributeName: a number, 0 for none.
inline ns::String underlineStyle() { return u"NSUnderline"_ns; }
inline ns::String strikethroughStyle() { return u"NSStrikethrough"_ns; }

} // namespace ui::attributes
