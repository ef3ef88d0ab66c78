// UIView's place in the tree: superviews, subviews, order, and coordinates between views.
#include "desktop/coregraphics/affine.hpp"
#include "desktop/quartzcore/screen_changes.hpp"
#include "desktop/uikit/constraints/view_constraints.hpp"
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>

namespace desktop {

ns::Array View::subviews() const {
    const auto array = ns::MutableArray::make();
    for (const auto& child : subviews_) {
        array.add(child);
    }
    return array;
}

ui::Window View::window() const {
    if (const auto window = self().as<ui::Window>(); window) {
        return window;
    }
    return superview_.window();
}

ui::Responder View::nextResponder() const {
    return controller_ ? static_cast<ui::Responder>(controller_)
                       : static_cast<ui::Responder>(superview_);
}

std::size_t View::indexOf(ui::View view) const {
    return static_cast<std::size_t>(std::ranges::find(subviews_, view) - subviews_.begin());
}

void View::addSubview(ui::View view) { insert(view, subviews_.size()); }

void View::insertAtIndex(ui::View view, long index) {
    insert(view, static_cast<std::size_t>(std::max(0L, index)));
}

void View::insertAbove(ui::View view, ui::View sibling) {
    view.removeFromSuperview();
    insert(view, indexOf(sibling) + 1);
}

void View::insertBelow(ui::View view, ui::View sibling) {
    view.removeFromSuperview();
    insert(view, indexOf(sibling));
}

void View::bringToFront(ui::View view) {
    if (const std::size_t index = indexOf(view); index < subviews_.size()) {
        std::rotate(subviews_.begin() + static_cast<std::ptrdiff_t>(index),
                    subviews_.begin() + static_cast<std::ptrdiff_t>(index) + 1, subviews_.end());
        ScreenChanges::shared().announce();
    }
}

void View::sendToBack(ui::View view) {
    if (const std::size_t index = indexOf(view); index < subviews_.size()) {
        std::rotate(subviews_.begin(), subviews_.begin() + static_cast<std::ptrdiff_t>(index),
                    subviews_.begin() + static_cast<std::ptrdiff_t>(index) + 1);
        ScreenChanges::shared().announce();
    }
}

void View::insert(ui::View view, std::size_t index) {
    if (!view || view == self() || isDescendantOf(view)) {
        return; // a tree has no cycles
    }
    const objc::Strong<ui::View> kept = view; // its former superview may own it alone
    const ui::Window former = view.window();
    view.send<"willMoveToSuperview:">(self());
    of(view).leaveSuperview();
    subviews_.insert(
        subviews_.begin() + static_cast<std::ptrdiff_t>(std::min(index, subviews_.size())), kept);
    of(view).superview_ = self();
    self().setNeedsLayout();
    of(view).inherit(traits_);
    view.send<"didMoveToSuperview">();
    if (const ui::Window current = window(); current != former) {
        announceWindow(view, current);
    }
    self().send<"didAddSubview:">(view);
}

/// Parts with the superview, if there is one, without a word to the view itself. Whoever calls
/// keeps the view alive.
void View::leaveSuperview() {
    if (!superview_) {
        return;
    }
    ViewConstraints::dropAcross(self());
    superview_.send<"willRemoveSubview:">(self());
    View& parent = of(superview_);
    std::erase(parent.subviews_, self());
    parent.self().setNeedsLayout();
    superview_ = nullptr;
}

void View::removeFromSuperview() {
    if (!superview_) {
        return;
    }
    const objc::Strong<ui::View> kept = self();
    const bool wasInWindow = static_cast<bool>(window());
    self().send<"willMoveToSuperview:">(ui::View());
    leaveSuperview();
    self().send<"didMoveToSuperview">();
    if (wasInWindow) {
        announceWindow(self(), nullptr);
    }
}

/// Tells a view and everything in it that they have come into a window, or (nil) left theirs.
void View::announceWindow(ui::View view, ui::Window window) {
    if (!window) {
        of(view).layer().removeAllAnimations();
        first_responder::leftWindow(view);
    }
    if (const ui::ViewController controller = of(view).controller(); controller) {
        ViewController::of(controller).viewMovesTo(window);
    }
    view.send<"willMoveToWindow:">(window);
    view.send<"didMoveToWindow">();
    const auto children = of(view).subviews_; // a copy: the messages may change the tree
    for (const auto& child : children) {
        announceWindow(child, window);
    }
}

bool View::isDescendantOf(ui::View ancestor) const {
    for (ui::View view = self(); view; view = view.superview()) {
        if (view == ancestor) {
            return true;
        }
    }
    return false;
}

ui::View View::viewWithTag(long tag) const {
    if (tag_ == tag) {
        return self();
    }
    for (const auto& child : subviews_) {
        if (const ui::View found = child.viewWithTag(tag); found) {
            return found;
        }
    }
    return nullptr;
}

/// The first responder in this view, if there is one, gives the focus up; whether it did.
bool View::endEditing(bool force) {
    const auto first = first_responder::current().as<ui::View>();
    if (!first || !of(first).isDescendantOf(self())) {
        return true;
    }
    if (!first.resignFirstResponder() && force) {
        first_responder::drop();
    }
    return first_responder::current() != first;
}

CGAffineTransform View::toWindow() const {
    CGAffineTransform transform;
    for (ui::View view = self(); view; view = view.superview()) {
        // A window's own place on the screen is not part of its coordinates.
        if (view.as<ui::Window>()) {
            const CGPoint origin = view.bounds().origin;
            return concatenated(transform, {1, 0, 0, 1, -origin.x, -origin.y});
        }
        transform = concatenated(transform, of(view).layer().toSuperlayer());
    }
    return transform;
}

CGAffineTransform View::to(ui::View other) const {
    if (!other) {
        return toWindow();
    }
    return concatenated(toWindow(), inverted(of(other).toWindow()).value_or(CGAffineTransform()));
}

CGPoint View::convertPointTo(CGPoint point, ui::View other) const {
    return apply(to(other), point);
}

CGPoint View::convertPointFrom(CGPoint point, ui::View other) const {
    return apply(inverted(to(other)).value_or(CGAffineTransform()), point);
}

CGRect View::convertRectTo(CGRect rect, ui::View other) const { return apply(to(other), rect); }

CGRect View::convertRectFrom(CGRect rect, ui::View other) const {
    return apply(inverted(to(other)).value_or(CGAffineTransform()), rect);
}

} // namespace desktop
