// The image contexts of UIKit: what is drawn while one is open becomes a picture.
#pragma once

#include "bindings/coregraphics/context.hpp"
#include "bindings/uikit/image.hpp"

extern "C" {
/// Opens a context of that size in points and makes it the current one; `scale` is pixels a point,
/// that of the screen when 0.
void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, double scale);
/// What is drawn on at the moment, by this thread; null outside of drawing.
CGContextRef UIGraphicsGetCurrentContext(void);
/// What is drawn so far (autoreleased); nil without an open context.
id UIGraphicsGetImageFromCurrentImageContext(void);
void UIGraphicsEndImageContext(void);
}

namespace ui {

/// An image context, open for a scope. Nothing but this thread draws in it.
class ImageContext {
public:
    /// Without alpha: what nothing is drawn on is black.
    static ImageContext opaque(CGSize size, double scale) {
        constexpr bool isOpaque = true;
        return {size, isOpaque, scale};
    }
    ImageContext(const ImageContext&) = delete;
    ImageContext& operator=(const ImageContext&) = delete;
    ~ImageContext() { UIGraphicsEndImageContext(); }

    /// Nil when the platform could not make a context of that size.
    [[nodiscard]] Image image() const {
        return objc::wrap<Image>(UIGraphicsGetImageFromCurrentImageContext());
    }

private:
    ImageContext(CGSize size, bool isOpaque, double scale) {
        UIGraphicsBeginImageContextWithOptions(size, isOpaque, scale);
    }
};

} // namespace ui
