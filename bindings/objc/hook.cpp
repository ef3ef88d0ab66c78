// Installing changes to classes through the runtime and the injection framework.
#include "bindings/objc/hook.hpp"

#include "bindings/objc/hook_primitive.hpp"

namespace objc {
namespace {

/// Where a row's method is or will be: the class that it names, its metaclass for class methods.
Class target(const Change& change) {
    const Class cls = objc_lookUpClass(change.className);
    return cls != nullptr && change.side == Side::type ? object_getClass(object(cls)) : cls;
}

/// Whether an implementation of these types may stand in for the method.
Outcome check(Method method, const char* types) {
    if (method == nullptr) {
        return Outcome::methodMissing;
    }
    const char* own = method_getTypeEncoding(method);
    return own == nullptr || types == nullptr || sameMeaning(own, types) ? Outcome::installed
                                                                         : Outcome::typesDiffer;
}

/// Makes this class alone answer `name` by the implementation; the types are those of its method.
void put(Class cls, SEL name, IMP implementation) {
    MSHookMessageEx(cls, name, implementation, nullptr);
}

Outcome exchange(const Change& change, Class cls, SEL name) {
    const Method method = class_getInstanceMethod(cls, name);
    // The slot is filled first: another thread may call the replacement as soon as it is there.
    *change.former = method_getImplementation(method);
    const bool published = class_addMethod(cls, sel_registerName(change.other), *change.former,
                                           method_getTypeEncoding(method)) != 0;
    put(cls, name, implementationAt(change.implementation));
    return published ? Outcome::installed : Outcome::selectorTaken;
}

Outcome replace(const Change& change, Class cls) {
    const SEL name = sel_registerName(change.selector);
    const Outcome outcome = check(class_getInstanceMethod(cls, name), change.types);
    const IMP replacement = implementationAt(change.implementation);
    // Installing twice would make the replacement its own former method.
    if (outcome != Outcome::installed || class_getMethodImplementation(cls, name) == replacement) {
        return outcome;
    }
    if (change.how == Change::How::exchange) {
        return exchange(change, cls, name);
    }
    MSHookMessageEx(cls, name, replacement, change.former);
    return outcome;
}

Outcome perform(const Change& change) {
    const Class cls = target(change);
    if (cls == nullptr) {
        return Outcome::classMissing;
    }
    if (change.how == Change::How::addition) {
        return class_addMethod(cls, sel_registerName(change.selector),
                               implementationAt(change.implementation), change.types) != 0
                   ? Outcome::installed
                   : Outcome::methodPresent;
    }
    const Outcome outcome = replace(change, cls);
    const bool nothing = outcome == Outcome::methodMissing && change.how == Change::How::exchange;
    return nothing ? Outcome::nothingToExchange : outcome;
}

/// What the log says of an outcome; null for what is no news.
const char* news(const Change& change, Outcome outcome) {
    switch (outcome) {
    case Outcome::methodMissing:
        return change.mayBeMissing ? nullptr : "no such method: ";
    case Outcome::typesDiffer:
        return "method has other types than expected: ";
    case Outcome::methodPresent:
        return "method is there already: ";
    case Outcome::selectorTaken:
        return "exchanged, but its second selector has another method: ";
    default:
        return nullptr;
    }
}

} // namespace

std::string Change::description() const {
    return std::string(side == Side::type ? "+" : "") + className + " " + selector;
}

Outcome install(const Change& change) noexcept {
    const Outcome outcome = perform(change);
    if (const char* text = news(change, outcome); text != nullptr) {
        logLine(text + change.description());
    }
    return outcome;
}

Outcome swizzle(Class cls, SEL first, SEL second) noexcept {
    const Method one = class_getInstanceMethod(cls, first);
    const Method other = class_getInstanceMethod(cls, second);
    if (one == nullptr) {
        return Outcome::methodMissing;
    }
    const Outcome outcome = check(other, method_getTypeEncoding(one));
    if (outcome != Outcome::installed) {
        return outcome;
    }
    const IMP implementation = method_getImplementation(one);
    const IMP otherImplementation = method_getImplementation(other);
    // A message that arrives between the two reaches the former method under either selector.
    put(cls, second, implementation);
    put(cls, first, otherImplementation);
    return outcome;
}

namespace detail {

void FormerCall::swallow(const char* className) const {
    if (progress == Progress::running) {
        throw;
    }
    reportSwallowed(name, className);
}

} // namespace detail
} // namespace objc
