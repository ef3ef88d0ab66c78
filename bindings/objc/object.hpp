// The handle of any object: a borrowed reference, one pointer wide, nil by default.
#pragma once

#include "bindings/objc/send.hpp"

#include <bit>
#include <concepts>

namespace objc {

/// A borrowed reference to any object. Copying it neither retains nor releases; a message to a nil
/// handle does nothing and answers zero. Keep an object with `Strong`.
class Object {
public:
    constexpr Object() = default;
    constexpr Object(std::nullptr_t) {}

    [[nodiscard]] constexpr id raw() const { return object_; }
    constexpr explicit operator bool() const { return object_ != nullptr; }
    /// Identity, not equality; `isEqual` asks the objects.
    friend constexpr bool operator==(Object one, Object other) {
        return one.object_ == other.object_;
    }

    [[nodiscard]] bool isEqual(Object other) const { return send<"isEqual:", bool>(other); }
    /// As the object says itself; null for nil.
    [[nodiscard]] Class class_() const { return send<"class", Class>(); }
    [[nodiscard]] bool isKindOfClass(Class cls) const { return send<"isKindOfClass:", bool>(cls); }
    [[nodiscard]] bool respondsToSelector(SEL name) const {
        return send<"respondsToSelector:", bool>(name);
    }

    /// The same object as another kind, unchecked; the caller knows what it is.
    template <class Kind>
    [[nodiscard]] Kind assume() const {
        return std::bit_cast<Kind>(object_);
    }
    /// The same object as another kind, or nil when it is not of that kind.
    template <class Kind>
    [[nodiscard]] Kind as() const {
        const Class cls = Kind::classObject();
        return cls != nullptr && isKindOfClass(cls) ? assume<Kind>() : Kind();
    }

    /// The root class: what a kind without a wrapped superclass inherits from.
    static Class classObject() { return objc_lookUpClass("NSObject"); }

    template <Literal Name, class Result = void, class... Arguments>
    Result send(Arguments... arguments) const {
        return objc::send<Name, Result>(object_, arguments...);
    }

private:
    id object_ = nullptr;
};

/// A raw pointer from the runtime as a typed handle.
template <class Kind = Object>
Kind wrap(id object) {
    return std::bit_cast<Kind>(object);
}

/// Anything that is a handle: one pointer wide, trivially copyable, derived from `Object`.
template <class T>
concept Handle = std::derived_from<T, Object> && std::is_trivially_copyable_v<T> &&
                 sizeof(T) == sizeof(id);

} // namespace objc
