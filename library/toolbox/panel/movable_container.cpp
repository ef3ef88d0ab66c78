// Making the container and moving it.
#include "library/toolbox/panel/movable_container.hpp"

#include "library/common/draggable_view.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <array>

namespace wentra::toolbox {
namespace {

ui::View make(FloatingViewController controller) {
    constexpr CGRect frame{{220, 50}, {140, 60}};
    const auto container = ui::View::withFrame(frame);
    container.setBackgroundColor(ui::Color::clear());
    container.addGestureRecognizer(ui::GestureRecognizer::with<ui::PanGestureRecognizer>(
        controller, objc::selector<"dragContainer:">()));
    return container;
}

void drag(FloatingViewController, ui::PanGestureRecognizer pan) {
    const ui::GestureState state = pan.state();
    if (state == ui::GestureState::changed || state == ui::GestureState::ended) {
        moveAlong(pan.view(), pan, pan.view().superview());
    }
}

} // namespace

std::span<const objc::Change> containerCategory() {
    static constexpr std::array changes{
        objc::addition<"ZKFloatingViewController", "createContainerView", &make>(),
        objc::addition<"ZKFloatingViewController", "dragContainer:", &drag>(),
    };
    return changes;
}

} // namespace wentra::toolbox
