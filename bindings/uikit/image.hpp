// UIImage.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/coregraphics/image.hpp"
#include "bindings/foundation/string.hpp"

namespace ui {

struct Image : objc::Kind<Image, "UIImage"> {
    using Kind::Kind;

    /// Nil when the file is missing or is no image.
    static Image withContentsOfFile(ns::String path) {
        return sendClass<"imageWithContentsOfFile:", Image>(path);
    }
    /// Borrowed: valid as long as the image. Null for nil.
    [[nodiscard]] CGImageRef cgImage() const { return send<"CGImage", CGImageRef>(); }
    /// In points.
    [[nodiscard]] CGSize size() const { return send<"size", CGSize>(); }
};

} // namespace ui
