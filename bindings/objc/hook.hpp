// Changing methods of existing classes: hooks, exchanges and added methods, as rows.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/encoding.hpp"
#include "bindings/objc/method.hpp"
#include "bindings/objc/next.hpp"

#include <string>

namespace objc {

/// What a row's installation came to.
enum class Outcome {
    installed,
    classMissing,      ///< The process has no such class: the feature is absent there, no error.
    methodMissing,     ///< The class exists but has no such method to replace.
    nothingToExchange, ///< The class exists but does not answer the selector: nothing was done.
    methodPresent,     ///< The class has a method of its own where one was to be added.
    selectorTaken,     ///< Exchanged; the class has another method under the second selector.
    typesDiffer,       ///< The method has other types than the replacement; it was left alone.
};

/// One row of a table of changes to classes that are not ours: a constant, made by `hook`,
/// `classHook`, `exchange`, `addition` and `classAddition`.
struct Change {
    enum class How : unsigned char { hook, exchange, addition };

    const char* className;
    const char* selector;
    const char* types;
    FunctionPlace implementation;
    IMP* former;       ///< where the former implementation is kept; null for an addition
    const char* other; ///< the selector under which an exchange publishes it
    How how;
    Side side;
    bool mayBeMissing = false; ///< no phone need have the method: nothing is logged then

    /// "UILabel setText:", with "+" before a class method.
    [[nodiscard]] std::string description() const;
};

/// Does what the row says, once, and says how it went. What a maintainer must know is logged: a
/// method that is missing from a class that exists, or has other types, or is there already. A
/// missing class is normal and silent.
[[gnu::cold]] Outcome install(const Change& change) noexcept;

/// Lets two instance methods of the class trade places: from then on each selector runs the other's
/// implementation. An inherited method is overridden in `cls` and its superclass stays as it is.
/// Nothing is done when either is missing or their types differ.
Outcome swizzle(Class cls, SEL first, SEL second) noexcept;

namespace detail {

template <auto Replacement, class Function = decltype(Replacement)>
struct Signature;
template <auto Replacement, class R, class Receiver, class... A>
struct Signature<Replacement, R (*)(Next<R(A...)>, Receiver, A...)> {
    using Kind = Receiver;
    static constexpr std::size_t argumentCount = sizeof...(A);
    static constexpr const char* types = detail::types<R(A...)>;

    /// The replacement behind a slot that keeps the former implementation. What the replacement
    /// throws is reported and the host gets what it would have got without us; what the former
    /// implementation throws is the host's own and passes.
    template <Literal ClassName, Literal Selector, Side side>
    struct Slot {
        static inline IMP former = nullptr;
        static Passed<R> call(id self, SEL name, Passed<A>... arguments) {
            Call<R> running{{former, self, name}};
            const Next<R(A...)> next(running);
            try {
                return Replacement(next, wrap<Receiver>(self), received<A>(arguments)...);
            } catch (...) {
                running.swallow(ClassName.data());
            }
            if (running.progress == Progress::notCalled) {
                return next(received<A>(arguments)...);
            }
            return running.answer();
        }
    };
};

template <auto Function, class Type = decltype(Function)>
struct Addition;
template <auto Function, class R, class Receiver, class... A>
struct Addition<Function, R (*)(Receiver, A...)> {
    using Kind = Receiver;
    static constexpr const char* types = detail::types<R(A...)>;
    static constexpr std::size_t argumentCount = sizeof...(A);
    static Passed<R> call(id self, SEL name, Passed<A>... arguments) {
        try {
            return Function(wrap<Receiver>(self), received<A>(arguments)...);
        } catch (...) {
            reportSwallowed(name);
        }
        return zero<Passed<R>>();
    }
};

template <Literal ClassName, Literal Selector, Side side, auto Replacement>
constexpr Change replacement(Change::How how, const char* other) {
    using Types = Signature<Replacement>;
    static_assert(argumentCount(Selector) == Types::argumentCount,
                  "a selector has one colon for each argument");
    using Slot = typename Types::template Slot<ClassName, Selector, side>;
    return {ClassName.data(), Selector.data(), Types::types, &placed<&Slot::call>,
            &Slot::former,    other,           how,          side};
}

template <Literal ClassName, Literal Selector, Side side, auto Function>
constexpr Change added() {
    using Types = Addition<Function>;
    static_assert(argumentCount(Selector) == Types::argumentCount,
                  "a selector has one colon for each argument");
    return {ClassName.data(), Selector.data(), Types::types,          &placed<&Types::call>,
            nullptr,          nullptr,         Change::How::addition, side};
}

} // namespace detail

/// Replaces an instance method through the injection framework:
///
///     void rewritten(objc::Next<void(ns::String)> next, ui::Label label, ns::String text);
///     objc::hook<"setText:", &rewritten>()
///
/// The types come from the function, and so does the class, that of the receiver; a row whose
/// function serves several classes, or one without a handle, names the class first:
/// `hook<"UILabel", "setText:", &rewritten>()`. A method whose own types differ is left alone. An
/// inherited method is overridden in this class only.
template <Literal ClassName, Literal Selector, auto Replacement>
constexpr Change hook() {
    return detail::replacement<ClassName, Selector, Side::instance, Replacement>(Change::How::hook,
                                                                                 nullptr);
}

template <Literal Selector, auto Replacement>
constexpr Change hook() {
    return hook<detail::Signature<Replacement>::Kind::className, Selector, Replacement>();
}

/// The same for a class method; the replacement's receiver is the class, as an `Object`, so that
/// the row always names it.
template <Literal ClassName, Literal Selector, auto Replacement>
constexpr Change classHook() {
    return detail::replacement<ClassName, Selector, Side::type, Replacement>(Change::How::hook,
                                                                             nullptr);
}

/// Puts the replacement in the place of `Selector`'s method, which answers `Other` from then on.
/// Where the class only inherits `Selector`, it is overridden there and the superclass stays as it
/// is; a class that does not answer `Selector` at all is left alone. A method that the class has
/// under `Other` already, such as another library's, stays: `next` needs no selector.
template <Literal ClassName, Literal Selector, Literal Other, auto Replacement>
constexpr Change exchange() {
    static_assert(argumentCount(Selector) == argumentCount(Other));
    return detail::replacement<ClassName, Selector, Side::instance, Replacement>(
        Change::How::exchange, Other.data());
}
template <Literal Selector, Literal Other, auto Replacement>
constexpr Change exchange() {
    return exchange<detail::Signature<Replacement>::Kind::className, Selector, Other,
                    Replacement>();
}

/// Adds a method to a class that lacks it: `bool isOn(ui::View self)` under "isOn". One that the
/// class has already is left alone.
template <Literal ClassName, Literal Selector, auto Function>
constexpr Change addition() {
    return detail::added<ClassName, Selector, Side::instance, Function>();
}
template <Literal Selector, auto Function>
constexpr Change addition() {
    return addition<detail::Addition<Function>::Kind::className, Selector, Function>();
}

/// The same for a class method; the function's first argument is the class, as an `Object`.
template <Literal ClassName, Literal Selector, auto Function>
constexpr Change classAddition() {
    return detail::added<ClassName, Selector, Side::type, Function>();
}

/// The row of a method that no phone need have: that it is missing is no news.
constexpr Change whereThereIsOne(Change change) {
    change.mayBeMissing = true;
    return change;
}

} // namespace objc
