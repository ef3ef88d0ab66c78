// Installing changes to classes through the runtime and the injection framework.
#include "bindings/objc/hook.hpp"

#include "bindings/objc/hook_primitive.hpp"

namespace objc {

std::string Change::description() const {
    return std::string(side == Side::type ? "+" : "") + className + " " + selector;
}

Outcome install(const Change& change) noexcept {
    const Outcome outcome = change.install();
    if (outcome == Outcome::methodMissing) {
        logLine("no such method: " + change.description());
    } else if (outcome == Outcome::typesDiffer) {
        logLine("method has other types than expected: " + change.description());
    }
    return outcome;
}

namespace detail {
namespace {

/// Whether a replacement with these types may stand in for the class's method.
Outcome check(Class cls, SEL name, const char* types) {
    if (cls == nullptr) {
        return Outcome::classMissing;
    }
    const Method method = class_getInstanceMethod(cls, name);
    if (method == nullptr) {
        return Outcome::methodMissing;
    }
    const char* own = method_getTypeEncoding(method);
    return own == nullptr || sameMeaning(own, types) ? Outcome::installed : Outcome::typesDiffer;
}

} // namespace

Class target(const char* className, Side side) {
    const Class cls = objc_lookUpClass(className);
    return cls != nullptr && side == Side::type ? object_getClass(object(cls)) : cls;
}

Outcome hookMethod(Class cls, SEL name, const char* types, IMP replacement, IMP* former) {
    const Outcome outcome = check(cls, name, types);
    // Installing twice would make the replacement its own former method.
    if (outcome == Outcome::installed && class_getMethodImplementation(cls, name) != replacement) {
        MSHookMessageEx(cls, name, replacement, former);
    }
    return outcome;
}

Outcome exchangeMethods(Class cls, SEL name, SEL with, const char* types, IMP replacement) {
    const Outcome outcome = check(cls, name, types);
    if (outcome == Outcome::methodMissing) {
        return Outcome::nothingToExchange;
    }
    if (outcome != Outcome::installed) {
        return outcome;
    }
    const Method existing = class_getInstanceMethod(cls, name);
    class_addMethod(cls, with, replacement, types);
    if (class_addMethod(cls, name, replacement, types) != 0) { // it was only inherited
        class_replaceMethod(cls, with, method_getImplementation(existing), types);
    } else {
        method_exchangeImplementations(existing, class_getInstanceMethod(cls, with));
    }
    return outcome;
}

Outcome addMethodIfAbsent(Class cls, SEL name, const char* types, IMP implementation) {
    if (cls == nullptr) {
        return Outcome::classMissing;
    }
    return class_addMethod(cls, name, implementation, types) != 0 ? Outcome::installed
                                                                  : Outcome::methodPresent;
}

} // namespace detail
} // namespace objc
