// UIView's part in touching: which view a point hits, and the recognizers attached to a view.
#include "desktop/coregraphics/affine.hpp"
#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/views/view.hpp"

#include <ranges>

namespace desktop {

ui::View View::hitTest(CGPoint point, ui::Event event) const {
    constexpr double faintest = 0.01;
    if (isHidden() || alpha() < faintest || layer().refusesTouches() ||
        !self().isUserInteractionEnabled() || !self().pointInside(point, event)) {
        return nullptr;
    }
    const auto children = subviews_; // a copy: a test may change the tree
    for (const auto& child : children | std::views::reverse) {
        if (const auto hit = child.hitTest(self().convertPoint(point, child), event); hit) {
            return hit;
        }
    }
    return self();
}

bool View::pointInside(CGPoint point, ui::Event) const { return contains(bounds(), point); }

ns::Array View::gestureRecognizers() const {
    return recognizers_ ? recognizers_.copied() : ns::Array();
}

void View::addGestureRecognizer(ui::GestureRecognizer recognizer) {
    if (!recognizer || recognizer.view() == self()) {
        return;
    }
    if (!recognizers_) {
        recognizers_ = ns::MutableArray::make();
    }
    recognizers_.add(recognizer);
    if (const ui::View former = recognizer.view(); former) {
        former.removeGestureRecognizer(recognizer); // it has one view at a time
    }
    GestureRecognizer::of(recognizer).setView(self());
}

void View::removeGestureRecognizer(ui::GestureRecognizer recognizer) {
    if (recognizer && recognizer.view() == self()) {
        const objc::Strong<ui::GestureRecognizer> kept = recognizer;
        recognizers_.removeIdentical(recognizer);
        GestureRecognizer::of(recognizer).setView(nullptr);
    }
}

ns::Array View::interactions() const {
    return interactions_ ? interactions_.copied() : ns::MutableArray::make();
}

void View::addInteraction(objc::Object interaction) {
    if (!interactions_) {
        interactions_ = ns::MutableArray::make();
    }
    interaction.send<"willMoveToView:">(self());
    interactions_.add(interaction);
    interaction.send<"didMoveToView:">(self());
}

void View::removeInteraction(objc::Object interaction) {
    if (interactions_.contains(interaction)) {
        const objc::Strong<objc::Object> kept = interaction;
        kept.send<"willMoveToView:">(ui::View());
        interactions_.removeIdentical(kept);
        kept.send<"didMoveToView:">(ui::View());
    }
}

void View::releaseRecognizers() {
    for (const objc::Object recognizer : recognizers_) {
        GestureRecognizer::of(recognizer).setView(nullptr);
    }
}

} // namespace desktop
