// Options: scoped enumerations of bits that may be combined.
#pragma once

#include <type_traits>

namespace objc {

/// Whether the values of an enumeration may be combined: beside such an enumeration stands
/// `constexpr bool areOptions(Corners) { return true; }`, and in its namespace
/// `using objc::operator|, objc::operator&, objc::operator~;`.
template <class T>
concept Options = std::is_enum_v<T> && requires(T options) {
    areOptions(options);
};

template <Options T>
constexpr T operator|(T one, T other) {
    using Bits = std::underlying_type_t<T>;
    return static_cast<T>(static_cast<Bits>(one) | static_cast<Bits>(other));
}
template <Options T>
constexpr T operator&(T one, T other) {
    using Bits = std::underlying_type_t<T>;
    return static_cast<T>(static_cast<Bits>(one) & static_cast<Bits>(other));
}
/// All other bits, the unknown ones too.
template <Options T>
constexpr T operator~(T options) {
    return static_cast<T>(~static_cast<std::underlying_type_t<T>>(options));
}

/// Whether `options` and `some` have a bit in common.
template <Options T>
constexpr bool haveAny(T options, T some) {
    return (options & some) != T();
}

} // namespace objc
