// Message sends: typed, nil-safe, at the cost of a C call through the looked-up implementation.
#pragma once

#include "bindings/objc/passing.hpp"
#include "bindings/objc/selector.hpp"

#include <type_traits>

namespace objc {

/// The C function type of a method.
template <class Result, class... Arguments>
using Implementation = Passed<Result> (*)(id, SEL, Passed<Arguments>...);

/// Calls `implementation`, a method's function of that exact type, with receiver and selector.
template <class Result, class... Arguments>
Result invoke(IMP implementation, id receiver, SEL name, Arguments... arguments) {
    auto call = reinterpret_cast<Implementation<Result, Arguments...>>(implementation);
    if constexpr (std::is_void_v<Result>) {
        call(receiver, name, arguments...);
    } else {
        return received<Result>(call(receiver, name, arguments...));
    }
}

/// Whether the runtime's own send answers zero for nil: where it does, results in registers need no
/// test of ours.
template <class Result>
inline constexpr bool answersNil = lookUpTakesNil;
template <class Result>
requires(std::is_class_v<Result> &&
         sizeof(Result) > 2 * sizeof(id)) inline constexpr bool answersNil<Result> = false;

/// Sends a message whose selector is known only at run time. A nil receiver answers zero.
template <class Result = void, class... Arguments>
Result sendTo(id receiver, SEL name, Arguments... arguments) {
    if (!answersNil<Result> && receiver == nullptr) {
        return zero<Result>();
    }
    return invoke<Result, Arguments...>(lookUp(receiver, name), receiver, name, arguments...);
}

/// Sends `Name` to `receiver`: `send<"length", std::size_t>(string)`. A nil receiver answers zero.
template <Literal Name, class Result = void, class... Arguments>
Result send(id receiver, Arguments... arguments) {
    static_assert(argumentCount(Name) == sizeof...(Arguments),
                  "a selector has one colon for each argument");
    return sendTo<Result, Arguments...>(receiver, selector<Name>(), arguments...);
}

/// A class receives messages like any object.
inline id object(Class cls) { return reinterpret_cast<id>(cls); }

/// Sends the message as if the receiver were an instance of `superclass` (for a class method: the
/// superclass's metaclass).
template <Literal Name, class Result = void, class... Arguments>
Result sendSuper(Class superclass, id receiver, Arguments... arguments) {
    static_assert(argumentCount(Name) == sizeof...(Arguments),
                  "a selector has one colon for each argument");
    const SEL name = selector<Name>();
    return invoke<Result, Arguments...>(class_getMethodImplementation(superclass, name), receiver,
                                        name, arguments...);
}

} // namespace objc
