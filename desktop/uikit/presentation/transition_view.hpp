// The views around a presented controller's view: what holds it, what dims the rest, and the shape
// of a popover.
#pragma once

#include "bindings/uikit/view.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/presentation/presentation_geometry.hpp"

#include <functional>

namespace desktop {

struct TransitionViewKind : objc::Kind<TransitionViewKind, "UITransitionView", ui::View> {
    using Kind::Kind;
};

struct LayoutContainerKind : objc::Kind<LayoutContainerKind, "UILayoutContainerView", ui::View> {
    using Kind::Kind;
};

/// A view that somebody else lays out, by `arrange`.
template <class Kind>
class ArrangedView : public PlatformClass<ArrangedView<Kind>, Kind> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"layoutSubviews", &ArrangedView::layoutSubviews>()};
    }

    std::function<void(CGRect bounds)> arrange;

private:
    void layoutSubviews() {
        if (arrange) {
            arrange(this->self().bounds());
        }
    }
};

/// Covers the window and holds what is presented.
using TransitionView = ArrangedView<TransitionViewKind>;
/// Holds the bars and the screens of a container.
using LayoutContainer = ArrangedView<LayoutContainerKind>;

struct SheetViewKind : objc::Kind<SheetViewKind, "UIDropShadowView", ui::View> {
    using Kind::Kind;
};

/// The card of a sheet. Its lower corners lie below the screen, and out of the safe area, too.
class SheetView : public PlatformClass<SheetView, SheetViewKind> {
public:
    static auto methods() {
        return std::array{objc::method<"safeAreaInsets", &SheetView::safeAreaInsets>()};
    }

    static constexpr double cornerRadius = 10;

private:
    [[nodiscard]] UIEdgeInsets safeAreaInsets() const {
        auto insets = super<"safeAreaInsets", UIEdgeInsets>();
        insets.bottom += cornerRadius;
        return insets;
    }
};

struct DimmingViewKind : objc::Kind<DimmingViewKind, "UIDimmingView", ui::View> {
    using Kind::Kind;
};

/// Keeps touches from what lies behind it, and tells of taps.
class DimmingView : public PlatformClass<DimmingView, DimmingViewKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"touchesBegan:withEvent:", &DimmingView::ignore>(),
            objc::method<"touchesMoved:withEvent:", &DimmingView::ignore>(),
            objc::method<"touchesEnded:withEvent:", &DimmingView::touchesEnded>(),
            objc::method<"touchesCancelled:withEvent:", &DimmingView::ignore>(),
        };
    }

    std::function<void()> tapped;

private:
    void ignore(objc::Object, objc::Object) {}
    void touchesEnded(objc::Object, objc::Object) {
        const auto then = tapped; // a copy: it may end this view
        if (then) {
            then();
        }
    }
};

struct PopoverViewKind : objc::Kind<PopoverViewKind, "_UIPopoverView", ui::View> {
    using Kind::Kind;
};

/// Draws the box with its arrow; holds one view, rounded as the box.
class PopoverView : public PlatformClass<PopoverView, PopoverViewKind> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"drawRect:", &PopoverView::drawRect>()};
    }

    static PopoverViewKind around(ui::View content, ui::Color background);
    /// Takes that place in its superview.
    void moveTo(const PopoverPlace& place);

private:
    void drawRect(CGRect dirty);

    PopoverPlace place_; // in this view's own coordinates
    objc::Strong<ui::View> clip_;
    objc::Strong<ui::View> content_;
    objc::Strong<ui::Color> background_;
};

} // namespace desktop
