// Images as the bytes of files.
#pragma once

#include "bindings/foundation/data.hpp"
#include "bindings/uikit/image.hpp"

extern "C" {
id UIImagePNGRepresentation(id image);
id UIImageJPEGRepresentation(id image, double quality);
}

namespace ui {

/// Nil for nil, and for an image without pixels.
inline ns::Data pngRepresentation(Image image) {
    return objc::wrap<ns::Data>(UIImagePNGRepresentation(image.raw()));
}
/// `quality` from 0 to 1, which is the best. What shines through is white.
inline ns::Data jpegRepresentation(Image image, double quality) {
    return objc::wrap<ns::Data>(UIImageJPEGRepresentation(image.raw(), quality));
}

} // namespace ui
