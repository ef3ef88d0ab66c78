// UITextRange.
#pragma once

#include "bindings/uikit/text_position.hpp"

namespace ui {

struct TextRange : objc::Kind<TextRange, "UITextRange"> {
    using Kind::Kind;

    [[nodiscard]] TextPosition start() const { return send<"start", TextPosition>(); }
    [[nodiscard]] TextPosition end() const { return send<"end", TextPosition>(); }
};

} // namespace ui
