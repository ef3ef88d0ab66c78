// UIView's table, creation and box.
#include "desktop/uikit/views/view.hpp"

#include "bindings/uikit/application.hpp"
#include "desktop/coregraphics/affine.hpp"
#include "desktop/uikit/constraints/view_constraints.hpp"
#include "desktop/uikit/views/view_animation.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

std::vector<objc::MethodRow> View::methods() {
    std::vector<objc::MethodRow> rows{
        objc::method<"init", &View::init>(),
        objc::method<"initWithFrame:", &View::initWithFrame>(),
        objc::method<"layer", &View::layerObject>(),
        objc::property<"frame", &View::frame, &View::setFrame>(),
        objc::property<"bounds", &View::bounds, &View::setBounds>(),
        objc::property<"center", &View::center, &View::setCenter>(),
        objc::property<"transform", &View::transform, &View::setTransform>(),
        objc::property<"alpha", &View::alpha, &View::setAlpha>(),
        objc::method<"isHidden", &View::isHidden>(),
        objc::method<"setHidden:", &View::setHidden>(),
        objc::method<"isOpaque", &View::isOpaque>(),
        objc::property<"backgroundColor", &View::backgroundColor, &View::setBackgroundColor>(),
        objc::property<"clipsToBounds", &View::clipsToBounds, &View::setClipsToBounds>(),
        objc::property<"tintColor", &View::tintColor, &View::setTintColor>(),
        objc::method<"traitCollection", &View::traitCollection>(),
        objc::method<"traitCollectionDidChange:", &View::ignoreMove>(),
        objc::property<"overrideUserInterfaceStyle", &View::overrideStyle,
                       &View::setOverrideStyle>(),
        objc::property<"tag", &View::tag_>(),
        objc::property<"contentMode", &View::contentMode_, &View::setNeedsDisplay>(),
        objc::property<"autoresizingMask", &View::autoresizingMask_>(),
        objc::flag<"userInteractionEnabled", &View::userInteractionEnabled_>(),
        objc::flag<"multipleTouchEnabled", &View::multipleTouchEnabled_>(),
        objc::property<"accessibilityLabel", &View::accessibilityLabel_>(),
        objc::property<"accessibilityIdentifier", &View::accessibilityIdentifier_>(),
        objc::property<"restorationIdentifier", &View::restorationIdentifier_>(),
        objc::method<"superview", &View::superview_>(),
        objc::method<"subviews", &View::subviews>(),
        objc::method<"window", &View::window>(),
        objc::method<"nextResponder", &View::nextResponder>(),
        objc::method<"addSubview:", &View::addSubview>(),
        objc::method<"insertSubview:atIndex:", &View::insertAtIndex>(),
        objc::method<"insertSubview:aboveSubview:", &View::insertAbove>(),
        objc::method<"insertSubview:belowSubview:", &View::insertBelow>(),
        objc::method<"bringSubviewToFront:", &View::bringToFront>(),
        objc::method<"sendSubviewToBack:", &View::sendToBack>(),
        objc::method<"removeFromSuperview", &View::removeFromSuperview>(),
        objc::method<"isDescendantOfView:", &View::isDescendantOf>(),
        objc::method<"viewWithTag:", &View::viewWithTag>(),
        objc::method<"willMoveToSuperview:", &View::ignoreMove>(),
        objc::method<"didMoveToSuperview", &View::layoutSubviews>(),
        objc::method<"willMoveToWindow:", &View::ignoreMove>(),
        objc::method<"didMoveToWindow", &View::layoutSubviews>(),
        objc::method<"didAddSubview:", &View::ignoreMove>(),
        objc::method<"willRemoveSubview:", &View::ignoreMove>(),
        objc::method<"convertPoint:toView:", &View::convertPointTo>(),
        objc::method<"convertPoint:fromView:", &View::convertPointFrom>(),
        objc::method<"convertRect:toView:", &View::convertRectTo>(),
        objc::method<"convertRect:fromView:", &View::convertRectFrom>(),
        objc::method<"safeAreaInsets", &View::safeAreaInsets>(),
        objc::method<"safeAreaInsetsDidChange", &View::layoutSubviews>(),
        objc::method<"layoutSubviews", &View::layoutSubviews>(),
        objc::method<"setNeedsLayout", &View::setNeedsLayout>(),
        objc::method<"layoutIfNeeded", &View::layoutIfNeeded>(),
        objc::method<"setNeedsDisplay", &View::setNeedsDisplay>(),
        objc::method<"drawRect:", &View::drawRect>(),
        objc::method<"drawViewHierarchyInRect:afterScreenUpdates:", &View::drawHierarchy>(),
        objc::method<"sizeThatFits:", &View::sizeThatFits>(),
        objc::method<"sizeToFit", &View::sizeToFit>(),
        objc::method<"intrinsicContentSize", &View::intrinsicContentSize>(),
        objc::method<"gestureRecognizers", &View::gestureRecognizers>(),
        objc::method<"addGestureRecognizer:", &View::addGestureRecognizer>(),
        objc::method<"removeGestureRecognizer:", &View::removeGestureRecognizer>(),
        objc::method<"interactions", &View::interactions>(),
        objc::method<"addInteraction:", &View::addInteraction>(),
        objc::method<"removeInteraction:", &View::removeInteraction>(),
        objc::method<"gestureRecognizerShouldBegin:", &View::gestureRecognizerShouldBegin>(),
        objc::method<"endEditing:", &View::endEditing>(),
        objc::method<"hitTest:withEvent:", &View::hitTest>(),
        objc::method<"pointInside:withEvent:", &View::pointInside>(),
    };
    std::ranges::copy(viewAnimationMethods(), std::back_inserter(rows));
    std::ranges::copy(ViewConstraints::methods(), std::back_inserter(rows));
    return rows;
}

View::View() : layer_(ca::Layer::make()) {
    layer().setRenderer([this](Canvas& canvas) { draw(canvas, bounds()); });
}

View::~View() {
    layer().setRenderer(nullptr);
    for (const auto& child : subviews_) {
        of(child).superview_ = nullptr;
    }
    releaseRecognizers();
}

ViewConstraints& View::constraints() {
    if (!constraints_) {
        constraints_ = std::make_unique<ViewConstraints>(self());
    }
    return *constraints_;
}

ui::View View::initWithFrame(CGRect frame) {
    setFrame(frame);
    return self();
}

void View::setFrame(CGRect frame) {
    const CGSize former = bounds().size;
    layer().setFrame(frame);
    resizeChildren(former);
}

void View::setBounds(CGRect bounds) {
    const CGSize former = this->bounds().size;
    layer().setBounds(bounds);
    resizeChildren(former);
}

void View::setAlpha(double alpha) {
    layer().setOpacity(static_cast<float>(std::isnan(alpha) ? 0 : std::clamp(alpha, 0.0, 1.0)));
}

void View::setTintColor(ui::Color color) {
    tintColor_ = color;
    tintChanged();
}

/// Whatever is in the view may show its tint, and arrange by it what it shows.
void View::tintChanged() {
    setNeedsDisplay();
    setNeedsLayout();
    for (const auto& child : subviews_) {
        of(child).tintChanged();
    }
}

ui::Color View::tintColor() const {
    if (tintColor_ || !superview_) {
        return tintColor_ ? static_cast<ui::Color>(tintColor_) : ui::Color::systemBlue();
    }
    return superview_.tintColor();
}

} // namespace desktop
