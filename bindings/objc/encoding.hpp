// Type encodings: how the runtime writes the types of a method, made from C++ types at compile
// time.
#pragma once

#include "bindings/objc/object.hpp"
#include "bindings/objc/strong.hpp"

#include <string_view>
#include <type_traits>

namespace objc {

/// The encoding of a C++ type as a literal `value`. A type without one is a compile error; value
/// types of the platform specialise it where they are declared.
template <class T>
struct Encoding;

template <class T>
constexpr auto encodingOf() {
    return Encoding<std::remove_cv_t<T>>::value;
}

// NOLINTBEGIN(cppcoreguidelines-macro-usage)
#define WENTRA_ENCODES(TYPE, TEXT)                                                                 \
    template <>                                                                                    \
    struct Encoding<TYPE> {                                                                        \
        static constexpr Literal value = TEXT;                                                     \
    }
WENTRA_ENCODES(void, "v");
WENTRA_ENCODES(bool, "B");
WENTRA_ENCODES(char, "c");
WENTRA_ENCODES(signed char, "c");
WENTRA_ENCODES(unsigned char, "C");
WENTRA_ENCODES(short, "s");
WENTRA_ENCODES(unsigned short, "S");
WENTRA_ENCODES(char16_t, "S");
WENTRA_ENCODES(int, "i");
WENTRA_ENCODES(unsigned int, "I");
// On 64-bit platforms NSInteger is written "q", whichever C type it is.
WENTRA_ENCODES(long, "q");
WENTRA_ENCODES(unsigned long, "Q");
WENTRA_ENCODES(long long, "q");
WENTRA_ENCODES(unsigned long long, "Q");
WENTRA_ENCODES(float, "f");
WENTRA_ENCODES(double, "d");
WENTRA_ENCODES(id, "@");
WENTRA_ENCODES(Class, "#");
WENTRA_ENCODES(SEL, ":");
WENTRA_ENCODES(char*, "*");
WENTRA_ENCODES(const char*, "r*");
WENTRA_ENCODES(void*, "^v");
WENTRA_ENCODES(const void*, "r^v");
#undef WENTRA_ENCODES
// NOLINTEND(cppcoreguidelines-macro-usage)

/// A handle is written by what it refers to: an object, unless its kind says otherwise (a block
/// says "@?").
template <class T>
requires std::derived_from<T, Object>
struct Encoding<T> {
    static constexpr auto value = [] {
        if constexpr (requires { T::encoding; }) {
            return T::encoding;
        } else {
            return Literal("@");
        }
    }();
};

template <class T>
requires std::is_enum_v<T>
struct Encoding<T> {
    static constexpr auto value = encodingOf<std::underlying_type_t<T>>();
};

template <class T>
requires(std::is_pointer_v<T>&& std::is_arithmetic_v<std::remove_pointer_t<T>> &&
         !std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, char>) struct Encoding<T> {
    static constexpr auto value = join(Literal("^"), encodingOf<std::remove_pointer_t<T>>());
};

/// The types of a method: result, receiver, selector, arguments. `bool(Label)` gives "B@:@".
template <class Signature>
struct MethodEncoding;
template <class Result, class... Arguments>
struct MethodEncoding<Result(Arguments...)> {
    static constexpr auto value =
        join(encodingOf<Lent<Result>>(), Literal("@:"), encodingOf<Lent<Arguments>>()...);
};

namespace detail {

template <class Kind>
constexpr auto nameOfKind() {
    if constexpr (requires { Kind::Elements::className; }) {
        return join(Kind::className, Literal("<"), Kind::Elements::className, Literal(">"));
    } else {
        return Kind::className;
    }
}

} // namespace detail

/// The encoding of an argument with the class that the object is of, `@"UIFont"`, and for an array
/// that knows its elements theirs, `@"NSArray<UIView>"`; as `encodingOf` where there is no class.
template <class T>
constexpr auto classedEncodingOf() {
    using Kind = Lent<T>;
    if constexpr (requires { Kind::className; }) {
        return join(Literal("@\""), detail::nameOfKind<Kind>(), Literal("\""));
    } else {
        return encodingOf<Kind>();
    }
}

/// Like `MethodEncoding`, but the arguments tell their classes: `void(Font)` gives `v@:@"UIFont"`.
template <class Signature>
struct ClassedMethodEncoding;
template <class Result, class... Arguments>
struct ClassedMethodEncoding<Result(Arguments...)> {
    static constexpr auto value =
        join(encodingOf<Lent<Result>>(), Literal("@:"), classedEncodingOf<Arguments>()...);
};

/// Whether two method encodings mean the same to a caller. Frame offsets, qualifiers and the names
/// of structures and classes do not count; NSInteger may be written "l" or "q", BOOL "B", "c" or
/// "C".
[[nodiscard, gnu::cold]] bool sameMeaning(std::string_view one, std::string_view other);

} // namespace objc
