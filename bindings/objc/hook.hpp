// Changing methods of existing classes: hooks, exchanges and added methods, as rows.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/encoding.hpp"
#include "bindings/objc/method.hpp"

#include <functional>
#include <string>
#include <type_traits>

namespace objc {

/// What a row's installation came to.
enum class Outcome {
    installed,
    classMissing,      ///< The process has no such class: the feature is absent there, no error.
    methodMissing,     ///< The class exists but has no such method to replace.
    nothingToExchange, ///< The class exists but does not answer the selector: nothing was done.
    methodPresent,     ///< The class has a method of its own where one was to be added.
    typesDiffer,       ///< The method has other types than the replacement; it was left alone.
};

/// One row of a table of changes to classes that are not ours. `install` does it and says how it
/// went; it throws nothing.
struct Change {
    const char* className;
    const char* selector;
    Side side;
    Outcome (*install)() noexcept;

    /// "UILabel setText:", with "+" before a class method.
    [[nodiscard]] std::string description() const;
};

/// What was there before the replacement, ready to be called with the method's arguments. Calling
/// it is up to the replacement; whatever it throws belongs to the host and passes through.
template <class Signature>
class Next;

namespace detail {

/// What a replacement's call of the former implementation came to.
struct Progress {
    bool called = false;
    bool threw = false;
};

} // namespace detail

template <class R, class... A>
class Next<R(A...)> {
public:
    Next(IMP former, id self, SEL name, detail::Progress& progress)
        : former_(former), self_(self), name_(name), progress_(&progress) {}

    R operator()(A... arguments) const {
        progress_->called = true;
        progress_->threw = true;
        if constexpr (std::is_void_v<R>) {
            invoke<R, A...>(former_, self_, name_, arguments...);
            progress_->threw = false;
        } else {
            R result = invoke<R, A...>(former_, self_, name_, arguments...);
            progress_->threw = false;
            return result;
        }
    }

private:
    IMP former_;
    id self_;
    SEL name_;
    detail::Progress* progress_;
};

namespace detail {

/// Where replaced methods come from: the class that the row names, its metaclass for class methods.
Class target(const char* className, Side side);

Outcome hookMethod(Class cls, SEL name, const char* types, IMP replacement, IMP* former);
Outcome exchangeMethods(Class cls, SEL name, SEL with, const char* types, IMP replacement);
Outcome addMethodIfAbsent(Class cls, SEL name, const char* types, IMP implementation);

/// Calls the replacement. When it fails by itself, that is reported and the host gets what it would
/// have got without us; what the former implementation throws is the host's own and passes.
template <auto Replacement, class Receiver, class R, class... A>
R guarded(const char* where, IMP former, id self, SEL name, A... arguments) {
    Progress progress;
    const Next<R(A...)> next(former, self, name, progress);
    try {
        return Replacement(next, wrap<Receiver>(self), arguments...);
    } catch (...) {
        if (progress.threw) {
            throw;
        }
        reportSwallowed(where);
    }
    if (!progress.called) {
        return next(arguments...);
    }
    return R();
}

template <auto Replacement, class Function = decltype(Replacement)>
struct Signature;
template <auto Replacement, class R, class Receiver, class... A>
struct Signature<Replacement, R (*)(Next<R(A...)>, Receiver, A...)> {
    static constexpr std::size_t argumentCount = sizeof...(A);
    static constexpr const char* types = detail::types<R(A...)>;

    /// The replacement behind a slot that keeps the former implementation.
    template <Literal ClassName, Literal Selector>
    struct Slot {
        static inline IMP former = nullptr;
        static Passed<R> call(id self, SEL name, Passed<A>... arguments) {
            return guarded<Replacement, Receiver, R, A...>(where<ClassName, Selector>, former, self,
                                                           name, received<A>(arguments)...);
        }
    };
    /// The replacement whose former implementation answers another selector.
    template <Literal ClassName, Literal Selector, Literal Other>
    struct Exchanged {
        static Passed<R> call(id self, SEL, Passed<A>... arguments) {
            const SEL other = selector<Other>();
            return guarded<Replacement, Receiver, R, A...>(where<ClassName, Selector>,
                                                           lookUp(self, other), self, other,
                                                           received<A>(arguments)...);
        }
    };

private:
    template <Literal ClassName, Literal Selector>
    static constexpr auto place = join(ClassName, Literal(" "), Selector);
    template <Literal ClassName, Literal Selector>
    static constexpr const char* where = place<ClassName, Selector>.data();
};

template <Literal ClassName, Literal Selector, Side side, auto Replacement>
Outcome installHook() noexcept {
    using Types = Signature<Replacement>;
    using Slot = typename Types::template Slot<ClassName, Selector>;
    return hookMethod(target(ClassName.data(), side), selector<Selector>(), Types::types,
                      reinterpret_cast<IMP>(&Slot::call), &Slot::former);
}

template <Literal ClassName, Literal Selector, Literal Other, auto Replacement>
IMP exchanged() {
    using Call = typename Signature<Replacement>::template Exchanged<ClassName, Selector, Other>;
    return reinterpret_cast<IMP>(&Call::call);
}

template <auto Function, class Type = decltype(Function)>
struct Addition;
template <auto Function, class R, class Receiver, class... A>
struct Addition<Function, R (*)(Receiver, A...)> {
    static constexpr const char* types = detail::types<R(A...)>;
    static constexpr std::size_t argumentCount = sizeof...(A);
    static Passed<R> call(id self, SEL name, Passed<A>... arguments) {
        return contained(sel_getName(name), [&]() -> Passed<R> {
            return Function(wrap<Receiver>(self), received<A>(arguments)...);
        });
    }
};

} // namespace detail

/// Replaces an instance method through the injection framework:
///
///     void rewritten(objc::Next<void(ns::String)> next, ui::Label label, ns::String text);
///     objc::hook<"UILabel", "setText:", &rewritten>()
///
/// The types come from the function; a method whose own types differ is left alone. An inherited
/// method is overridden in the named class only.
template <Literal ClassName, Literal Selector, auto Replacement>
constexpr Change hook() {
    static_assert(argumentCount(Selector) == detail::Signature<Replacement>::argumentCount);
    return {ClassName.data(), Selector.data(), Side::instance,
            &detail::installHook<ClassName, Selector, Side::instance, Replacement>};
}

/// The same for a class method; the replacement's receiver is the class, as an `Object`.
template <Literal ClassName, Literal Selector, auto Replacement>
constexpr Change classHook() {
    static_assert(argumentCount(Selector) == detail::Signature<Replacement>::argumentCount);
    return {ClassName.data(), Selector.data(), Side::type,
            &detail::installHook<ClassName, Selector, Side::type, Replacement>};
}

/// Adds the replacement under `Other` and exchanges it with `Selector`: from then on `Selector`
/// runs the replacement and `Other` the former method, which `next` sends. Where the class only
/// inherits `Selector`, it is overridden there and the superclass stays as it is; a class that does
/// not answer `Selector` at all is left alone.
template <Literal ClassName, Literal Selector, Literal Other, auto Replacement>
constexpr Change exchange() {
    static_assert(argumentCount(Selector) == argumentCount(Other));
    return {ClassName.data(), Selector.data(), Side::instance, []() noexcept {
                return detail::exchangeMethods(
                    detail::target(ClassName.data(), Side::instance), selector<Selector>(),
                    selector<Other>(), detail::Signature<Replacement>::types,
                    detail::exchanged<ClassName, Selector, Other, Replacement>());
            }};
}

/// Adds a method to a class that lacks it: `bool isOn(ui::View self)` under "isOn". One that the
/// class has already is left alone.
template <Literal ClassName, Literal Selector, auto Function>
constexpr Change addition() {
    static_assert(argumentCount(Selector) == detail::Addition<Function>::argumentCount);
    return {ClassName.data(), Selector.data(), Side::instance, []() noexcept {
                using Types = detail::Addition<Function>;
                return detail::addMethodIfAbsent(detail::target(ClassName.data(), Side::instance),
                                                 selector<Selector>(), Types::types,
                                                 reinterpret_cast<IMP>(&Types::call));
            }};
}

/// The same for a class method; the function's first argument is the class, as an `Object`.
template <Literal ClassName, Literal Selector, auto Function>
constexpr Change classAddition() {
    static_assert(argumentCount(Selector) == detail::Addition<Function>::argumentCount);
    return {ClassName.data(), Selector.data(), Side::type, []() noexcept {
                using Types = detail::Addition<Function>;
                return detail::addMethodIfAbsent(detail::target(ClassName.data(), Side::type),
                                                 selector<Selector>(), Types::types,
                                                 reinterpret_cast<IMP>(&Types::call));
            }};
}

/// Installs a row and logs what a maintainer must know: a method that is missing from a class that
/// exists, or has other types. A missing class is normal and silent.
Outcome install(const Change& change) noexcept;

} // namespace objc
