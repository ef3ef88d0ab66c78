// A layer's geometry.
#include "desktop/quartzcore/layer.hpp"

#include "bindings/foundation/exception.hpp"
#include "desktop/coregraphics/affine.hpp"

#include <cmath>

namespace desktop {
namespace {

using namespace ns::literals;

[[noreturn]] void raiseInvalidGeometry() {
    ns::Exception::with(u"CALayerInvalidGeometry"_ns, u"CALayer geometry contains NaN"_ns).raise();
}

} // namespace

void Layer::setBounds(CGRect bounds) {
    if (hasNaN(bounds)) {
        raiseInvalidGeometry();
    }
    bounds_ = standardised(bounds);
}

void Layer::setPosition(CGPoint position) {
    if (std::isnan(position.x) || std::isnan(position.y)) {
        raiseInvalidGeometry();
    }
    position_ = position;
}

CGAffineTransform Layer::toSuperlayer() const {
    const CGPoint middle = centre(bounds_);
    const CGAffineTransform toMiddle{1, 0, 0, 1, -middle.x, -middle.y};
    const CGAffineTransform toPosition{1, 0, 0, 1, position_.x, position_.y};
    return concatenated(concatenated(toMiddle, transform_), toPosition);
}

CGRect Layer::frame() const {
    if (transform_ == CGAffineTransform()) {
        // Without a round trip through the middle, a frame reads back as it was set.
        return {{position_.x - bounds_.size.width / 2, position_.y - bounds_.size.height / 2},
                bounds_.size};
    }
    return apply(toSuperlayer(), bounds_);
}

void Layer::setFrame(CGRect frame) {
    const CGRect upright = standardised(frame);
    CGSize size = upright.size;
    if (const auto inverse = inverted(transform_); inverse) {
        size = apply(*inverse, CGRect{{0, 0}, size}).size;
    }
    const CGPoint position = centre(upright);
    setPosition(position);
    setBounds({bounds_.origin, size});
}

void Layer::setBorderColor(CGColorRef color) {
    borderColor_ = objc::wrap<ui::Color>(reinterpret_cast<id>(color));
}

} // namespace desktop
