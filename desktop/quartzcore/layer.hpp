// CALayer: where a view is, and how its box looks.
#pragma once

#include "bindings/quartzcore/layer.hpp"

#include "bindings/uikit/color.hpp"
#include "desktop/class.hpp"
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/quartzcore/animation/animation.hpp"
#include "desktop/quartzcore/layer_values.hpp"
#include "desktop/quartzcore/screen_changes.hpp"

#include <functional>
#include <utility>
#include <vector>

namespace desktop {

/// Geometry and box of a view. What is set is so at once; what is shown follows in the time of the
/// animation in whose block it was set.
class Layer : public PlatformClass<Layer, ca::Layer> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"bounds", &Layer::bounds, &Layer::setBounds>(),
            objc::property<"position", &Layer::position, &Layer::setPosition>(),
            objc::property<"frame", &Layer::frame, &Layer::setFrame>(),
            objc::property<"affineTransform", &Layer::transform, &Layer::setTransform>(),
            objc::property<"opacity", &Layer::opacity, &Layer::setOpacity>(),
            objc::flag<"hidden", &Layer::hidden_, &Layer::changed>(),
            objc::property<"cornerRadius", &Layer::cornerRadius, &Layer::setCornerRadius>(),
            objc::property<"backgroundColor", &Layer::backgroundColor,
                           &Layer::setBackgroundColor>(),
            objc::property<"borderWidth", &Layer::borderWidth_, &Layer::changed>(),
            objc::property<"borderColor", &Layer::borderColor, &Layer::setBorderColor>(),
            objc::property<"masksToBounds", &Layer::masksToBounds_, &Layer::changed>(),
            objc::property<"contents", &Layer::contents_, &Layer::setNeedsDisplay>(),
            objc::method<"setNeedsDisplay", &Layer::setNeedsDisplay>(),
            objc::method<"renderInContext:", &Layer::renderInContext>(),
            objc::method<"presentationLayer", &Layer::presentationLayer>(),
            objc::method<"removeAllAnimations", &Layer::removeAllAnimations>(),
        };
    }

    ~Layer() { removeAllAnimations(); }

    [[nodiscard]] CGRect bounds() const { return model_.bounds; }
    void setBounds(CGRect bounds);
    [[nodiscard]] CGPoint position() const { return model_.position; }
    void setPosition(CGPoint position);
    [[nodiscard]] CGRect frame() const { return model_.frame(); }
    void setFrame(CGRect frame);
    [[nodiscard]] CGAffineTransform transform() const { return model_.transform; }
    void setTransform(CGAffineTransform transform) { change<&LayerValues::transform>(transform); }
    [[nodiscard]] CGAffineTransform toSuperlayer() const { return model_.toSuperlayer(); }

    [[nodiscard]] float opacity() const { return model_.opacity; }
    void setOpacity(float opacity) { change<&LayerValues::opacity>(opacity); }
    [[nodiscard]] double cornerRadius() const { return model_.cornerRadius; }
    void setCornerRadius(double points) { change<&LayerValues::cornerRadius>(points); }
    [[nodiscard]] CGColorRef backgroundColor() const { return backgroundColor_.cgColor(); }
    void setBackgroundColor(CGColorRef color);
    [[nodiscard]] ui::Color backgroundUIColor() const { return backgroundColor_; }
    [[nodiscard]] CGColorRef borderColor() const { return borderColor_.cgColor(); }
    void setBorderColor(CGColorRef color);
    [[nodiscard]] ui::Color borderUIColor() const { return borderColor_; }

    [[nodiscard]] bool isHidden() const { return hidden_; }
    void setHidden(bool hidden);
    [[nodiscard]] double borderWidth() const { return borderWidth_; }
    /// Whether what lies in the layer ends at its bounds.
    [[nodiscard]] bool masksToBounds() const { return masksToBounds_; }
    void setMasksToBounds(bool masks);
    /// An image, or nil.
    [[nodiscard]] objc::Object contents() const { return contents_; }

    /// What the layer's view draws, or its image, is another one now.
    void setNeedsDisplay();
    /// Differs from that of every other content, and from those that this layer has had before.
    [[nodiscard]] std::uint64_t contentStamp() const { return contentStamp_; }
    /// Stamps up to here are never given to a layer.
    static constexpr std::uint64_t reservedStamps = 15;

    /// Who draws the layer with all that is in it, in the layer's coordinates; nobody when empty.
    void setRenderer(std::function<void(Canvas&)> renderer) { renderer_ = std::move(renderer); }

    /// What is shown now.
    [[nodiscard]] LayerValues presented() const;
    /// Whether it moves, in an animation that touches must not disturb.
    [[nodiscard]] bool refusesTouches() const;
    /// What moves arrives at once.
    void removeAllAnimations();
    /// The animation is over.
    void forget(const Animation& animation);

private:
    /// One value on its way: where it started, and how to tell where it is.
    struct Movement {
        using Blend = void (*)(LayerValues& shown, const LayerValues& from, double progress);
        Blend blend;
        LayerValues from;
        std::shared_ptr<Animation> animation;
    };

    template <auto Member, class Value>
    void change(const Value& value) {
        if (model_.*Member == value) {
            return;
        }
        if (auto animation = Animation::current(); animation) {
            move(
                [](LayerValues& shown, const LayerValues& from, double progress) {
                    shown.*Member = blended(from.*Member, shown.*Member, progress);
                },
                std::move(animation));
        }
        model_.*Member = value;
        ScreenChanges::shared().announce();
    }
    void move(Movement::Blend blend, std::shared_ptr<Animation> animation);
    [[nodiscard]] ca::Layer presentationLayer() const;

    void renderInContext(CGContextRef context) const;

    static std::uint64_t nextStamp();
    void changed();

    LayerValues model_;
    bool hidden_ = false;
    double borderWidth_ = 0;
    bool masksToBounds_ = false;
    std::uint64_t contentStamp_ = nextStamp();
    std::function<void(Canvas&)> renderer_;
    std::vector<Movement> movements_;
    objc::Strong<ui::Color> backgroundColor_;
    objc::Strong<ui::Color> borderColor_;
    objc::Strong<objc::Object> contents_;
};

} // namespace desktop
