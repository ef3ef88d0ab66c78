// How C++ types travel in messages.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <array>
#include <bit>
#include <type_traits>

namespace objc {

template <class Kind>
class Strong;
template <class Kind>
class Copied;
template <class Kind>
class Weak;

/// The handle that an owning or weak reference lends; any other type as it is.
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
template <class Kind>
struct Lending<Weak<Kind>> {
    using Type = Kind;
};
template <class T>
using Lent = typename Lending<std::remove_cvref_t<T>>::Type;

/// The type that travels: BOOL for bool, the borrowed object for an owning or weak reference, plain
/// values and handles as they are.
template <class T>
using Passed = std::conditional_t<std::is_same_v<Lent<T>, bool>, Boolean, Lent<T>>;

/// What a message to nil answers: zero in every field, whatever the type's own default is.
template <class T>
constexpr T zero() {
    if constexpr (std::is_class_v<T> && std::is_trivially_copyable_v<T>) {
        return std::bit_cast<T>(std::array<unsigned char, sizeof(T)>{});
    } else {
        return T();
    }
}

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
