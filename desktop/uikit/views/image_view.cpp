// Image views: fitting the image into the view by the content mode.
#include "desktop/uikit/views/image_view.hpp"

#include "desktop/coregraphics/affine.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/values/image.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {
namespace {

using ui::ContentMode;

CGRect placed(CGSize image, CGRect bounds, ContentMode mode) {
    if (mode == ContentMode::scaleToFill || image.width <= 0 || image.height <= 0) {
        return bounds;
    }
    const double across = bounds.size.width / image.width;
    const double down = bounds.size.height / image.height;
    double scale = 1;
    if (mode == ContentMode::scaleAspectFit) {
        scale = std::min(across, down);
    } else if (mode == ContentMode::scaleAspectFill) {
        scale = std::max(across, down);
    }
    const CGPoint middle = centre(bounds);
    const CGSize size{image.width * scale, image.height * scale};
    return {{middle.x - size.width / 2, middle.y - size.height / 2}, size};
}

} // namespace

ui::ImageView ImageView::initWithImage(ui::Image image) {
    self().send<"initWithFrame:", ui::View>(CGRect{{}, image.size()});
    image_ = image;
    return self();
}

void ImageView::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas != nullptr && image_) {
        UIImage::draw(image_, *canvas,
                      rectangle(placed(image_.size(), self().bounds(), self().contentMode())),
                      self().tintColor());
    }
}

CGSize ImageView::intrinsicContentSize() const {
    return image_ ? image_.size() : CGSize{noIntrinsicMetric, noIntrinsicMetric};
}

} // namespace desktop
