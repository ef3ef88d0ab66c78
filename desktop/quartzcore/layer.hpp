// CALayer: where a view is, and how its box looks.
#pragma once

#include "bindings/quartzcore/layer.hpp"

#include "bindings/uikit/color.hpp"
#include "desktop/class.hpp"

namespace desktop {

/// Geometry and box of a view. The anchor point is the middle.
class Layer : public PlatformClass<Layer, ca::Layer> {
public:
    static auto methods() {
        return std::array{
            objc::property<"bounds", &Layer::bounds, &Layer::setBounds>(),
            objc::property<"position", &Layer::position, &Layer::setPosition>(),
            objc::property<"frame", &Layer::frame, &Layer::setFrame>(),
            objc::property<"affineTransform", &Layer::transform_>(),
            objc::property<"opacity", &Layer::opacity_>(),
            objc::flag<"hidden", &Layer::hidden_>(),
            objc::property<"cornerRadius", &Layer::cornerRadius_>(),
            objc::property<"borderWidth", &Layer::borderWidth_>(),
            objc::property<"borderColor", &Layer::borderColor, &Layer::setBorderColor>(),
            objc::property<"masksToBounds", &Layer::masksToBounds_>(),
            objc::property<"contents", &Layer::contents_>(),
        };
    }

    [[nodiscard]] CGRect bounds() const { return bounds_; }
    void setBounds(CGRect bounds);
    [[nodiscard]] CGPoint position() const { return position_; }
    void setPosition(CGPoint position);
    /// The smallest upright rectangle around the transformed bounds, in the superlayer.
    [[nodiscard]] CGRect frame() const;
    void setFrame(CGRect frame);
    /// From the layer's own coordinates to its superlayer's.
    [[nodiscard]] CGAffineTransform toSuperlayer() const;

    [[nodiscard]] CGColorRef borderColor() const { return borderColor_.cgColor(); }
    void setBorderColor(CGColorRef color);
    [[nodiscard]] ui::Color borderUIColor() const { return borderColor_; }

    CGAffineTransform transform_;
    float opacity_ = 1;
    bool hidden_ = false;
    double cornerRadius_ = 0;
    double borderWidth_ = 0;
    bool masksToBounds_ = false;
    objc::Strong<objc::Object> contents_;

private:
    CGRect bounds_;
    CGPoint position_;
    objc::Strong<ui::Color> borderColor_;
};

} // namespace desktop
