// Messages that a delegate may or may not have a method for.
#pragma once

#include "bindings/objc/object.hpp"

namespace desktop {

/// Tells the delegate, if it wants to know.
template <objc::Literal Message, class... Arguments>
void tell(objc::Object delegate, Arguments... arguments) {
    if (delegate && delegate.respondsToSelector(objc::selector<Message>())) {
        delegate.send<Message>(arguments...);
    }
}

/// Asks the delegate; true when it has no answer.
template <objc::Literal Message, class... Arguments>
bool allows(objc::Object delegate, Arguments... arguments) {
    return !delegate || !delegate.respondsToSelector(objc::selector<Message>()) ||
           delegate.send<Message, bool>(arguments...);
}

} // namespace desktop
