// NSInvocation: a message whose types are known only at run time.
#pragma once

#include "bindings/foundation/method_signature.hpp"

namespace ns {

struct Invocation : objc::Kind<Invocation, "NSInvocation"> {
    using Kind::Kind;

    static Invocation with(MethodSignature signature) {
        return sendClass<"invocationWithMethodSignature:", Invocation>(signature);
    }
    void setSelector(SEL name) const { send<"setSelector:">(name); }
    /// Copies the value that `value` points to, of the argument's size; objects are not retained.
    void setArgument(const void* value, long index) const {
        send<"setArgument:atIndex:">(value, index);
    }
    void invokeWithTarget(objc::Object target) const { send<"invokeWithTarget:">(target); }
    /// Copies the result, of the signature's `returnLength`, to `buffer`.
    void getReturnValue(void* buffer) const { send<"getReturnValue:">(buffer); }
};

} // namespace ns
