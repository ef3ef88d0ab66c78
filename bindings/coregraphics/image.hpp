// CGImageRef: a picture as layers take it, and parts of it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <memory>

struct CGImage;
using CGImageRef = CGImage*;

extern "C" {
/// The part of the picture that the rectangle, in pixels, covers; null when it covers none, and for
/// null. The result is owned by the caller.
CGImageRef CGImageCreateWithImageInRect(CGImageRef image, CGRect rect);
void CGImageRelease(CGImageRef image);
}

template <>
struct objc::Encoding<CGImageRef> {
    static constexpr Literal value = "^{CGImage=}";
};

namespace cg {

/// Owns a picture.
struct ImageRelease {
    void operator()(CGImageRef image) const { CGImageRelease(image); }
};
using OwnedImage = std::unique_ptr<CGImage, ImageRelease>;

} // namespace cg
