// Traits of view controllers: those around their views, and what they say otherwise.
#include "desktop/uikit/controllers/view_controller.hpp"
#include "desktop/uikit/traits/trait_collection.hpp"
#include "desktop/uikit/views/view.hpp"

namespace desktop {

ui::TraitCollection ViewController::traitCollection() const {
    return TraitCollection::with(traits_);
}

std::optional<Traits> ViewController::inherit(const Traits& outer) {
    const Traits traits = merged(outer, {.style = overrideStyle_});
    const Traits former = std::exchange(traits_, traits);
    return former == traits ? std::nullopt : std::optional(former);
}

void ViewController::setOverrideStyle(ui::InterfaceStyle style) {
    overrideStyle_ = style;
    if (view_) {
        View& view = View::of(view_);
        view.inherit(view.outerTraits());
    } else {
        inherit(parent_ ? of(parent_).traits_ : screenTraits());
    }
}

} // namespace desktop
