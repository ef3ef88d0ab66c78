// The base of every wrapped class: a handle type that knows its class's name and superclass.
#pragma once

#include "bindings/objc/object.hpp"

#include <atomic>

namespace objc {

/// A class by its name.
class ClassReference {
public:
    constexpr explicit ClassReference(const char* name) : name_(name) {}

    /// The class, or null while no image has brought it. A class that was found is not looked up
    /// again; a missing one is, since it may be loaded later. Any thread.
    Class get();

private:
    const char* name_;
    std::atomic<Class> known_{nullptr};
};

/// `struct Label : objc::Kind<Label, "UILabel", View> { … }`: one line for each message.
template <class Self, Literal Name, class Super = Object>
struct Kind : Super {
    using Superkind = Super;
    static constexpr auto className = Name;

    constexpr Kind() = default;
    constexpr Kind(std::nullptr_t) {}

    /// The class, or null while no image has brought it.
    static Class classObject() {
        static constinit ClassReference reference(Name.data());
        return reference.get();
    }

    /// Sends a message to the class itself.
    template <Literal Selector, class Result = void, class... Arguments>
    static Result sendClass(Arguments... arguments) {
        return objc::send<Selector, Result>(object(classObject()), arguments...);
    }

    /// alloc, the given initialiser, autorelease: a new object, borrowed from the pool.
    template <Literal Initialiser = "init", class... Arguments>
    static Self make(Arguments... arguments) {
        const id made = objc_alloc(classObject());
        return wrap<Self>(objc_autorelease(objc::send<Initialiser, id>(made, arguments...)));
    }
};

} // namespace objc
