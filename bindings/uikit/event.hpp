// UIEvent.
#pragma once

#include "bindings/foundation/set.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct Touch;

struct Event : objc::Kind<Event, "UIEvent"> {
    using Kind::Kind;
};

inline View View::hitTest(CGPoint point, Event event) const {
    return send<"hitTest:withEvent:", View>(point, event);
}
inline bool View::pointInside(CGPoint point, Event event) const {
    return send<"pointInside:withEvent:", bool>(point, event);
}

} // namespace ui
