// UIEvent.
#pragma once

#include "bindings/foundation/set.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct Event : objc::Kind<Event, "UIEvent"> {
    using Kind::Kind;

    [[nodiscard]] ns::Set allTouches() const { return send<"allTouches", ns::Set>(); }
};

inline View View::hitTest(CGPoint point, Event event) const {
    return send<"hitTest:withEvent:", View>(point, event);
}
inline bool View::pointInside(CGPoint point, Event event) const {
    return send<"pointInside:withEvent:", bool>(point, event);
}

} // namespace ui
