// Keeping the one first responder.
#include "desktop/uikit/events/first_responder.hpp"

#include "bindings/uikit/window.hpp"
#include "desktop/uikit/keyboard/keyboard.hpp"

#include <utility>

namespace desktop::first_responder {
namespace {

ui::Responder first;

void change(ui::Responder responder) {
    first = responder;
    Keyboard::shared().serve(responder);
}

} // namespace

ui::Responder current() { return first; }

bool become(ui::Responder responder) {
    if (responder == first) {
        return true;
    }
    const auto view = responder.as<ui::View>();
    if (!responder.canBecomeFirstResponder() || (view && !view.window())) {
        return false;
    }
    const objc::Strong<ui::Responder> kept = responder;
    const objc::Strong<ui::Responder> former = first;
    {
        // The keyboard stays where it is while one responder follows the other.
        const Keyboard::Handover handover;
        if (former && !former.resignFirstResponder()) {
            return false;
        }
        first = responder;
    }
    Keyboard::shared().serve(first);
    return first == responder;
}

bool resign(ui::Responder responder) {
    if (responder != first) {
        return true;
    }
    if (!responder.send<"canResignFirstResponder", bool>()) {
        return false;
    }
    change(nullptr);
    return true;
}

void drop() { change(nullptr); }

void leftWindow(ui::View view) {
    if (view == first && !(view.resignFirstResponder() && view != first)) {
        drop();
    }
}

void forget(ui::Responder responder) {
    if (responder == first) {
        drop();
    }
}

} // namespace desktop::first_responder
