// UIView's layout: passes over the tree, sizes to fit, autoresizing, the safe area.
#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/constraints/layout_engine.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {

void View::setNeedsLayout() {
    needsLayout_ = true;
    layout_engine::invalidate();
    ScreenChanges::shared().announce(); // the layout is done before the next drawing
}

namespace {

// A layout may ask for another one; a few rounds settle what can be settled.
constexpr int rounds = 4;

} // namespace

void View::layoutIfNeeded() {
    static bool isUnderWay = false;
    if (isUnderWay) {
        layOut(); // constraints are solved for the whole tree at once
        return;
    }
    struct Pass {
        Pass() { isUnderWay = true; }
        ~Pass() { isUnderWay = false; }
    } const pass;
    for (int round = 0; round < rounds && (layout_engine::update(self()) || round == 0); ++round) {
        layOut();
    }
}

void View::tellSafeArea() {
    const UIEdgeInsets insets = self().safeAreaInsets();
    if (std::exchange(toldSafeArea_, insets) != insets) {
        controller_.send<"viewSafeAreaInsetsDidChange">();
        self().send<"safeAreaInsetsDidChange">();
    }
}

void View::layOut() {
    for (int round = 0; needsLayout_ && round < rounds; ++round) {
        needsLayout_ = false;
        const CurrentTraits current(traits_);
        tellSafeArea();
        controller_.send<"viewWillLayoutSubviews">();
        self().layoutSubviews();
        controller_.send<"viewDidLayoutSubviews">();
    }
    const auto children = subviews_; // a copy: layout may change the tree
    for (const auto& child : children) {
        child.layoutIfNeeded();
    }
}

void View::sizeToFit() {
    const CGSize size = self().sizeThatFits(bounds().size);
    self().setFrame({frame().origin, size});
}

CGSize View::intrinsicContentSize() const { return {noIntrinsicMetric, noIntrinsicMetric}; }

void View::resizeChildren(CGSize former) {
    const CGSize current = bounds().size;
    if (current == former) {
        return;
    }
    setNeedsLayout();
    for (const auto& child : subviews_) {
        of(child).autoresize(former, current);
    }
}

namespace {

/// One dimension of autoresizing: the change is shared among what is flexible, in proportion.
void stretch(double& origin, double& length, double former, double current, bool before,
             bool itself, bool after) {
    const double change = current - former;
    const double rest = former - origin - length;
    const double flexible =
        (before ? origin : 0.0) + (itself ? length : 0.0) + (after ? rest : 0.0);
    const int parts = static_cast<int>(before) + static_cast<int>(itself) + static_cast<int>(after);
    if (parts == 0) {
        return;
    }
    const auto share = [&](double part) {
        return flexible > 0 ? change * part / flexible : change / parts;
    };
    const double grow = itself ? share(length) : 0;
    origin += before ? share(origin) : 0;
    length += grow;
}

} // namespace

void View::autoresize(CGSize former, CGSize current) {
    using enum ui::ViewAutoresizing;
    const auto flexible = [this](ui::ViewAutoresizing bit) {
        return objc::haveAny(autoresizingMask_, bit);
    };
    CGRect frame = this->frame();
    const CGRect before = frame;
    stretch(frame.origin.x, frame.size.width, former.width, current.width,
            flexible(flexibleLeftMargin), flexible(flexibleWidth), flexible(flexibleRightMargin));
    stretch(frame.origin.y, frame.size.height, former.height, current.height,
            flexible(flexibleTopMargin), flexible(flexibleHeight), flexible(flexibleBottomMargin));
    if (frame != before) {
        self().setFrame(frame);
    }
}

/// What the superview's safe area leaves out of this view, and what bars of a controller cover.
UIEdgeInsets View::safeAreaInsets() const {
    const auto overlap = [](double unsafeEdge, double distance) {
        return std::max(0.0, unsafeEdge - std::max(0.0, distance));
    };
    UIEdgeInsets insets;
    if (self().as<ui::Window>()) {
        insets = ScreenGeometry::current().safeArea;
    } else if (superview_) {
        const UIEdgeInsets outer = superview_.safeAreaInsets();
        const CGRect room = superview_.bounds();
        const CGRect own = frame();
        const double left = own.origin.x - room.origin.x;
        const double top = own.origin.y - room.origin.y;
        insets = {overlap(outer.top, top), overlap(outer.left, left),
                  overlap(outer.bottom, room.size.height - top - own.size.height),
                  overlap(outer.right, room.size.width - left - own.size.width)};
    }
    if (controller_) {
        const UIEdgeInsets bars = ViewController::of(controller_).barInsets();
        insets = {insets.top + bars.top, insets.left + bars.left, insets.bottom + bars.bottom,
                  insets.right + bars.right};
    }
    return insets;
}

} // namespace desktop
