// Parts of pictures. A CGImage is the UIImage that has it.
#include "desktop/uikit/values/image.hpp"

extern "C" {

CGImageRef CGImageCreateWithImageInRect(CGImageRef image, CGRect rect) {
    const desktop::Image* picture = desktop::UIImage::valueOf(desktop::UIImage::imageOf(image));
    const auto part =
        picture != nullptr
            ? picture->cropped({rect.origin.x, rect.origin.y, rect.size.width, rect.size.height})
            : std::nullopt;
    return part ? reinterpret_cast<CGImageRef>(desktop::UIImage::from(*part).send<"retain", id>())
                : nullptr;
}

void CGImageRelease(CGImageRef image) { desktop::UIImage::imageOf(image).send<"release">(); }

} // extern "C"
