// UIImage.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/string.hpp"

namespace ui {

struct Image : objc::Kind<Image, "UIImage"> {
    using Kind::Kind;

    /// Nil when the file is missing or is no image.
    static Image withContentsOfFile(ns::String path) {
        return sendClass<"imageWithContentsOfFile:", Image>(path);
    }
    /// In points.
    [[nodiscard]] CGSize size() const { return send<"size", CGSize>(); }
};

} // namespace ui
