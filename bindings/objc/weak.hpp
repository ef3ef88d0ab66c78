// A reference that does not keep its object and forgets it when it dies.
#pragma once

#include "bindings/objc/strong.hpp"

namespace objc {

/// Knows an object without owning it: nil from the moment on at which the object begins to die. For
/// delegates, targets and whatever else points back at its owner. Any thread may read it while
/// others release the object; assigning needs the same care as assigning to any other variable.
template <class Kind>
class Weak {
public:
    constexpr Weak() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): knowing is what an assignment to Weak says.
    Weak(Kind object) { objc_initWeak(&place_, object.raw()); }
    Weak(const Weak& other) : Weak(other.strong()) {}
    ~Weak() { objc_destroyWeak(&place_); }

    Weak& operator=(const Weak& other) {
        *this = other.strong();
        return *this;
    }
    Weak& operator=(Kind object) {
        objc_storeWeak(&place_, object.raw());
        return *this;
    }

    /// The object, kept for as long as the result lives; nil when it is dead or none was assigned.
    [[nodiscard]] Strong<Kind> strong() const {
        return Strong<Kind>::adopt(wrap<Kind>(objc_loadWeakRetained(&place_)));
    }
    /// The object, kept until the current pool is drained, as a getter answers it; or nil.
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator Kind() const { return strong().autoreleased(); }
    /// Whether the object is still alive.
    explicit operator bool() const { return static_cast<bool>(strong()); }

    friend bool operator==(const Weak& one, Kind other) { return one.strong() == other; }

private:
    mutable id place_ = nullptr; ///< known to the runtime by its address
};

} // namespace objc
