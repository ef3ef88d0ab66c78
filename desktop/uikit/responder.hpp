// UIResponder: a link of the chain that events and actions travel along.
#pragma once

#include "bindings/uikit/event.hpp"
#include "bindings/uikit/responder.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Responder : public PlatformClass<Responder, ui::Responder> {
public:
    static auto methods() {
        return std::array{
            objc::method<"nextResponder", &Responder::nextResponder>(),
            objc::method<"canBecomeFirstResponder", &Responder::canBecomeFirstResponder>(),
            objc::method<"canPerformAction:withSender:", &Responder::canPerformAction>(),
            objc::method<"touchesBegan:withEvent:", &Responder::pass<"touchesBegan:withEvent:">>(),
            objc::method<"touchesMoved:withEvent:", &Responder::pass<"touchesMoved:withEvent:">>(),
            objc::method<"touchesEnded:withEvent:", &Responder::pass<"touchesEnded:withEvent:">>(),
            objc::method<"touchesCancelled:withEvent:",
                         &Responder::pass<"touchesCancelled:withEvent:">>(),
        };
    }

private:
    /// What a responder does not handle is the next one's.
    template <objc::Literal Message>
    void pass(ns::Set touches, ui::Event event) {
        self().nextResponder().send<Message>(touches, event);
    }
    [[nodiscard]] ui::Responder nextResponder() const { return nullptr; }
    [[nodiscard]] bool canBecomeFirstResponder() const { return false; }
    /// By default a responder can do what it has a method for.
    [[nodiscard]] bool canPerformAction(SEL action, objc::Object) const {
        return self().respondsToSelector(action);
    }
};

} // namespace desktop
