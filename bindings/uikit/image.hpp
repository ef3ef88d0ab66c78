// UIImage.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/coregraphics/image.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/uikit/image_symbol_configuration.hpp"

namespace ui {

/// Whether an image is drawn in its own colours or, as a shape, in the tint colour; `automatic` is
/// the latter for symbols. The platform's numbers.
enum class RenderingMode : long { automatic = 0, alwaysOriginal = 1, alwaysTemplate = 2 };

struct Image : objc::Kind<Image, "UIImage"> {
    using Kind::Kind;

    /// Nil when the file is missing or is no image.
    static Image withContentsOfFile(ns::String path) {
        return sendClass<"imageWithContentsOfFile:", Image>(path);
    }
    /// A picture in its own direction; nil for null. `scale` is pixels a point.
    static Image withCgImage(CGImageRef image, double scale) {
        constexpr long up = 0;
        return sendClass<"imageWithCGImage:scale:orientation:", Image>(image, scale, up);
    }
    /// Stretches the image over the rectangle, in the current image context.
    void drawInRect(CGRect rect) const { send<"drawInRect:">(rect); }
    /// Borrowed: valid as long as the image. Null for nil.
    [[nodiscard]] CGImageRef cgImage() const { return send<"CGImage", CGImageRef>(); }
    /// The system's symbol of that name; nil when there is none.
    static Image systemNamed(ns::String name) {
        return sendClass<"systemImageNamed:", Image>(name);
    }
    static Image systemNamed(ns::String name, ImageSymbolConfiguration configuration) {
        return sendClass<"systemImageNamed:withConfiguration:", Image>(name, configuration);
    }
    /// In points.
    [[nodiscard]] CGSize size() const { return send<"size", CGSize>(); }
    /// Pixels a point.
    [[nodiscard]] double scale() const { return send<"scale", double>(); }
};

} // namespace ui
