// How C++ types travel in messages.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <type_traits>

namespace objc {

template <class Kind>
class Strong;
template <class Kind>
class Copied;

/// The handle that an owning reference lends; any other type as it is.
template <class T>
struct Lending {
    using Type = T;
};
template <class Kind>
struct Lending<Strong<Kind>> {
    using Type = Kind;
};
template <class Kind>
struct Lending<Copied<Kind>> {
    using Type = Kind;
};
template <class T>
using Lent = typename Lending<std::remove_cvref_t<T>>::Type;

/// The type that travels: BOOL for bool, the borrowed object for an owning reference, plain values
/// and handles as they are.
template <class T>
using Passed = std::conditional_t<std::is_same_v<Lent<T>, bool>, Boolean, Lent<T>>;

/// From the travelling form back to the C++ type.
template <class T>
constexpr T received(Passed<T> value) {
    if constexpr (std::is_same_v<T, bool>) {
        return value != 0;
    } else {
        return value;
    }
}

} // namespace objc
