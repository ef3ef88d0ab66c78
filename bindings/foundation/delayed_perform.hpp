// NSObject's messages to oneself, sent later.
#pragma once

#include "bindings/objc/object.hpp"

namespace ns {

/// Sends `receiver` the message after that many seconds on the current thread's run loop, which
/// keeps receiver and argument until then. The message takes the argument, or nothing.
inline void performLater(objc::Object receiver, SEL message, objc::Object argument,
                         double seconds) {
    receiver.send<"performSelector:withObject:afterDelay:">(message, argument, seconds);
}

/// Takes back such messages that have not been sent.
inline void cancelPerform(objc::Object receiver, SEL message, objc::Object argument) {
    objc::send<"cancelPreviousPerformRequestsWithTarget:selector:object:">(
        objc::object(objc::Object::classObject()), receiver, message, argument);
}

} // namespace ns
