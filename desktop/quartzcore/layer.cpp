// A layer's values, set and shown.
#include "desktop/quartzcore/layer.hpp"

#include "bindings/foundation/exception.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/uikit/values/color.hpp"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

[[noreturn]] void raiseInvalidGeometry() {
    ns::Exception::with(u"CALayerInvalidGeometry"_ns, u"CALayer geometry contains NaN"_ns).raise();
}

ui::Color uiColor(CGColorRef color) { return objc::wrap<ui::Color>(reinterpret_cast<id>(color)); }

} // namespace

void Layer::setBounds(CGRect bounds) {
    if (hasNaN(bounds)) {
        raiseInvalidGeometry();
    }
    const CGRect upright = standardised(bounds);
    if (upright != model_.bounds) {
        setNeedsDisplay(); // views draw for the bounds that they have
    }
    change<&LayerValues::bounds>(upright);
}

void Layer::setPosition(CGPoint position) {
    if (std::isnan(position.x) || std::isnan(position.y)) {
        raiseInvalidGeometry();
    }
    change<&LayerValues::position>(position);
}

void Layer::setFrame(CGRect frame) {
    const CGRect upright = standardised(frame);
    CGSize size = upright.size;
    if (const auto inverse = inverted(model_.transform); inverse) {
        size = apply(*inverse, CGRect{{0, 0}, size}).size;
    }
    const CGPoint position = centre(upright);
    setPosition(position);
    setBounds({bounds().origin, size});
}

void Layer::setBackgroundColor(CGColorRef color) {
    backgroundColor_ = uiColor(color);
    change<&LayerValues::backgroundColor>(Color::valueOf(backgroundColor_));
}

void Layer::setBorderColor(CGColorRef color) {
    borderColor_ = uiColor(color);
    changed();
}

void Layer::setHidden(bool hidden) {
    hidden_ = hidden;
    changed();
}

void Layer::setMasksToBounds(bool masks) {
    masksToBounds_ = masks;
    changed();
}

void Layer::renderInContext(CGContextRef context) const {
    if (Canvas* canvas = canvasOf(context); canvas != nullptr && renderer_) {
        renderer_(*canvas);
    }
}

void Layer::setNeedsDisplay() {
    contentStamp_ = nextStamp();
    changed();
}

void Layer::changed() { ScreenChanges::shared().announce(); }

/// Views that no window has yet may be made and changed on any thread.
std::uint64_t Layer::nextStamp() {
    static std::atomic<std::uint64_t> latest = reservedStamps;
    return ++latest;
}

LayerValues Layer::presented() const {
    LayerValues shown = model_;
    if (!movements_.empty()) {
        const double now = Clock::shared().now();
        for (const Movement& movement : movements_) {
            movement.blend(shown, movement.from, movement.animation->progress(now));
        }
    }
    return shown;
}

ca::Layer Layer::presentationLayer() const {
    const auto shown = ca::Layer::make();
    Layer& peer = of(shown);
    peer.model_ = presented();
    peer.backgroundColor_ = Color::with(peer.model_.backgroundColor);
    peer.borderColor_ = borderColor_;
    peer.borderWidth_ = borderWidth_;
    peer.hidden_ = hidden_;
    peer.masksToBounds_ = masksToBounds_;
    peer.contents_ = contents_;
    return shown;
}

/// A value that moves already starts anew from where it is shown.
void Layer::move(Movement::Blend blend, std::shared_ptr<Animation> animation) {
    const LayerValues from = presented();
    const auto former = std::ranges::find(movements_, blend, &Movement::blend);
    if (former != movements_.end()) {
        const auto replaced = former->animation;
        movements_.erase(former);
        if (std::ranges::find(movements_, replaced, &Movement::animation) == movements_.end()) {
            replaced->handOver(*this);
        }
    }
    animation->join(*this);
    movements_.push_back({blend, from, std::move(animation)});
}

bool Layer::refusesTouches() const {
    return std::ranges::any_of(
        movements_, [](const Movement& movement) { return !movement.animation->allowsTouches(); });
}

void Layer::removeAllAnimations() {
    for (const Movement& movement : std::exchange(movements_, {})) {
        movement.animation->leave(*this);
        ScreenChanges::shared().announce();
    }
}

void Layer::forget(const Animation& animation) {
    std::erase_if(movements_,
                  [&](const Movement& one) { return one.animation.get() == &animation; });
    ScreenChanges::shared().announce();
}

} // namespace desktop
