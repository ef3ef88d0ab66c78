// NSTextContainer: the room that text is laid out in.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

struct TextContainer : objc::Kind<TextContainer, "NSTextContainer"> {
    using Kind::Kind;

    /// Points that stay free at both ends of each line.
    [[nodiscard]] double lineFragmentPadding() const {
        return send<"lineFragmentPadding", double>();
    }
};

} // namespace ui
