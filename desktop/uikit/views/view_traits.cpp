// Traits of views: where they come from, and what a change of them changes.
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/views/view.hpp"

namespace desktop {

ui::TraitCollection View::traitCollection() const { return TraitCollection::with(traits_); }

Traits View::outerTraits() const { return superview_ ? of(superview_).traits_ : screenTraits(); }

void View::setOverrideStyle(ui::InterfaceStyle style) {
    overrides_.style = style;
    inherit(outerTraits());
}

void View::elevate() {
    overrides_.level = ui::InterfaceLevel::elevated;
    inherit(outerTraits());
}

/// Views in this one derive their traits from it: where it has not changed, nothing in it has.
void View::inherit(const Traits& outer) {
    const objc::Strong<ui::View> kept = self(); // who is told may throw views away
    const objc::Strong<ui::ViewController> controller = controller_;
    Traits traits = outer;
    std::optional<Traits> formerOfController;
    if (controller) {
        formerOfController = ViewController::of(controller).inherit(outer);
        traits = ViewController::of(controller).traits();
    }
    traits = merged(traits, overrides_);
    const Traits former = std::exchange(traits_, traits);
    const CurrentTraits current(traits_);
    if (former != traits_) {
        showInTraits();
    }
    if (formerOfController) {
        controller.send<"traitCollectionDidChange:">(TraitCollection::with(*formerOfController));
    }
    if (former == traits_) {
        return;
    }
    self().send<"traitCollectionDidChange:">(TraitCollection::with(former));
    const auto children = subviews_; // a copy: whoever is told may change the tree
    for (const auto& child : children) {
        if (child.superview() == self()) {
            of(child).inherit(traits_);
        }
    }
}

void View::showInTraits() {
    if (dynamicBackground_) {
        layer().setBackgroundColor(dynamicBackground_.cgColor());
    }
    setNeedsDisplay();
    setNeedsLayout();
}

/// The layer has a colour that stays what it is; the view remembers the one that adapts.
void View::setBackgroundColor(ui::Color color) {
    dynamicBackground_ = Color::isDynamic(color) ? color : ui::Color();
    const CurrentTraits current(traits_);
    layer().setBackgroundColor(color.cgColor());
}

ui::Color View::backgroundColor() const {
    const ui::Color shown = layer().backgroundUIColor();
    const bool isStillShown =
        dynamicBackground_ && Color::valueOf(dynamicBackground_, traits_) == Color::valueOf(shown);
    return isStillShown ? static_cast<ui::Color>(dynamicBackground_) : shown;
}

} // namespace desktop
