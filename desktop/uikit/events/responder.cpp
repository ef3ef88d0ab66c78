// Responders: the way along the chain, and being the first.
#include "desktop/uikit/events/responder.hpp"

#include "desktop/uikit/events/first_responder.hpp"

namespace desktop {

std::vector<objc::MethodRow> Responder::methods() {
    return {
        objc::method<"nextResponder", &Responder::nextResponder>(),
        objc::method<"canBecomeFirstResponder", &Responder::canBecomeFirstResponder>(),
        objc::method<"canResignFirstResponder", &Responder::canResignFirstResponder>(),
        objc::method<"isFirstResponder", &Responder::isFirstResponder>(),
        objc::method<"becomeFirstResponder", &Responder::becomeFirstResponder>(),
        objc::method<"resignFirstResponder", &Responder::resignFirstResponder>(),
        objc::method<"canPerformAction:withSender:", &Responder::canPerformAction>(),
        objc::method<"targetForAction:withSender:", &Responder::targetForAction>(),
        objc::method<"touchesBegan:withEvent:", &Responder::pass<"touchesBegan:withEvent:">>(),
        objc::method<"touchesMoved:withEvent:", &Responder::pass<"touchesMoved:withEvent:">>(),
        objc::method<"touchesEnded:withEvent:", &Responder::pass<"touchesEnded:withEvent:">>(),
        objc::method<"touchesCancelled:withEvent:",
                     &Responder::pass<"touchesCancelled:withEvent:">>(),
        objc::method<"motionBegan:withEvent:", &Responder::passMotion<"motionBegan:withEvent:">>(),
        objc::method<"motionEnded:withEvent:", &Responder::passMotion<"motionEnded:withEvent:">>(),
        objc::method<"motionCancelled:withEvent:",
                     &Responder::passMotion<"motionCancelled:withEvent:">>(),
    };
}

Responder::~Responder() { first_responder::forget(self()); }

bool Responder::isFirstResponder() const { return first_responder::current() == self(); }

bool Responder::becomeFirstResponder() { return first_responder::become(self()); }

bool Responder::resignFirstResponder() { return first_responder::resign(self()); }

ui::Responder Responder::targetForAction(SEL action, objc::Object sender) const {
    ui::Responder target = self();
    while (target && !target.canPerformAction(action, sender)) {
        target = target.nextResponder();
    }
    return target;
}

} // namespace desktop
