// Ownership seen in the type: Strong retains, Copied copies, a plain handle borrows. See also Weak.
#pragma once

#include "bindings/objc/object.hpp"

#include <utility>

namespace objc {

/// Owns one reference to an object, or to none. Use it for every member that must outlive the
/// current autorelease pool; it lends itself wherever the plain handle is wanted.
template <class Kind>
class Strong : public Kind {
public:
    constexpr Strong() = default;
    constexpr Strong(std::nullptr_t) {}
    // NOLINTNEXTLINE(google-explicit-constructor): keeping is what an assignment to Strong says.
    Strong(Kind borrowed) : Kind(borrowed) { objc_retain(this->raw()); }
    Strong(const Strong& other) : Strong(static_cast<const Kind&>(other)) {}
    Strong(Strong&& other) noexcept : Kind(other.release()) {}
    ~Strong() { objc_release(this->raw()); }

    Strong& operator=(Strong other) noexcept {
        std::swap(static_cast<Kind&>(*this), static_cast<Kind&>(other));
        return *this;
    }

    /// Takes over a reference that the caller owns already (from alloc, new or copy).
    static Strong adopt(Kind owned) {
        Strong strong;
        static_cast<Kind&>(strong) = owned;
        return strong;
    }

    /// A reference that the current pool keeps alive, whatever becomes of this one.
    [[nodiscard]] Kind autoreleased() const {
        return wrap<Kind>(objc_autorelease(objc_retain(this->raw())));
    }

    /// Gives the reference up: the caller owns it from now on.
    [[nodiscard]] Kind release() noexcept {
        return std::exchange(static_cast<Kind&>(*this), Kind());
    }
};

/// Owns its own copy of what is assigned: for values that have mutable kinds, such as strings.
template <class Kind>
class Copied : public Strong<Kind> {
public:
    constexpr Copied() = default;
    constexpr Copied(std::nullptr_t) {}
    // NOLINTNEXTLINE(google-explicit-constructor)
    Copied(Kind original)
        : Strong<Kind>(Strong<Kind>::adopt(original.template send<"copy", Kind>())) {}
};

} // namespace objc
