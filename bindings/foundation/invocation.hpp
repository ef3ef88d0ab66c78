// NSMethodSignature and NSInvocation: messages whose types are known only at run time.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct MethodSignature : objc::Kind<MethodSignature, "NSMethodSignature"> {
    using Kind::Kind;

    static MethodSignature withTypes(const char* types) {
        return sendClass<"signatureWithObjCTypes:", MethodSignature>(types);
    }
    /// What `receiver`, an object or a class, answers `name` with; nil when it does not.
    static MethodSignature of(objc::Object receiver, SEL name) {
        return receiver.send<"methodSignatureForSelector:", MethodSignature>(name);
    }
    /// The receiver and the selector are the first two.
    [[nodiscard]] unsigned long numberOfArguments() const {
        return send<"numberOfArguments", unsigned long>();
    }
    /// The type's encoding; owned by the signature.
    [[nodiscard]] const char* argumentType(unsigned long index) const {
        return send<"getArgumentTypeAtIndex:", const char*>(index);
    }
    [[nodiscard]] const char* returnType() const { return send<"methodReturnType", const char*>(); }
    /// In bytes.
    [[nodiscard]] unsigned long returnLength() const {
        return send<"methodReturnLength", unsigned long>();
    }
};

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
