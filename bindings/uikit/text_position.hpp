// UITextPosition.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

/// A place between two characters; only the view that made it knows where.
struct TextPosition : objc::Kind<TextPosition, "UITextPosition"> {
    using Kind::Kind;
};

} // namespace ui
