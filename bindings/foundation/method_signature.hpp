// NSMethodSignature: the types of a message that are known only at run time.
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

} // namespace ns
