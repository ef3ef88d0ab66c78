// UIImage: a picture of the drawing core as an object.
#pragma once

#include "bindings/uikit/image.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/image.hpp"
#include "desktop/uikit/immutable.hpp"

#include <optional>

namespace desktop {

class UIImage : public PlatformClass<UIImage, ui::Image> {
public:
    static auto methods() {
        return std::array{
            objc::classMethod<"imageWithContentsOfFile:", &UIImage::withContentsOfFile>(),
            objc::method<"CGImage", &UIImage::cgImage>(),
            objc::method<"size", &UIImage::size>(),
            objc::method<"scale", &UIImage::scale>(),
            copyIsSelf(),
        };
    }

    /// The picture; null for nil and for an image without one.
    static const Image* valueOf(ui::Image image);

private:
    static ui::Image withContentsOfFile(Class, ns::String path);
    /// Here, the image itself.
    [[nodiscard]] CGImageRef cgImage() const { return reinterpret_cast<CGImageRef>(self().raw()); }
    [[nodiscard]] CGSize size() const;
    [[nodiscard]] double scale() const { return value_ ? value_->scale() : 1; }

    std::optional<Image> value_;
};

} // namespace desktop
