// UIImageView: shows one image.
#pragma once

#include "bindings/uikit/image_view.hpp"

#include "desktop/class.hpp"

namespace desktop {

class ImageView : public PlatformClass<ImageView, ui::ImageView> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithImage:", &ImageView::initWithImage>(),
            objc::property<"image", &ImageView::image_, &ImageView::redraw>(),
            objc::method<"drawRect:", &ImageView::drawRect>(),
            objc::method<"sizeThatFits:", &ImageView::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &ImageView::intrinsicContentSize>(),
        };
    }

private:
    ui::ImageView initWithImage(ui::Image image);
    void redraw() { self().setNeedsDisplay(); }
    void drawRect(CGRect dirty);
    [[nodiscard]] CGSize sizeThatFits(CGSize) const { return image_.size(); }
    [[nodiscard]] CGSize intrinsicContentSize() const;

    objc::Strong<ui::Image> image_;
};

} // namespace desktop
