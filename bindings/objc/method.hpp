// Rows of a class's method table: a selector and the C++ member that answers it.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/encoding.hpp"

#include <array>

namespace objc {

/// Whether a method belongs to the instances or to the class.
enum class Side { instance, type };

/// A function of some type, as a row keeps it: the address of a constant that holds its pointer.
/// Rows are constants, and a constant may not cast a function pointer.
using FunctionPlace = const void*;
template <auto Function>
inline constexpr auto placed = Function;

/// The function at that place, as the runtime takes it.
IMP implementationAt(FunctionPlace place);

/// What belongs to a property beyond its getter.
struct PropertyRow {
    const char* name = nullptr;
    const char* setter = nullptr;
    FunctionPlace setterImplementation = nullptr;
    const char* setterTypes = nullptr;
    /// The type's encoding, and whether the property keeps what is assigned ("&", "C"), forgets it
    /// when it dies ("W") or neither (null).
    const char* type = nullptr;
    const char* ownership = nullptr;
};

/// One row: what the runtime needs to know of a method, and of the property that it gets. Made by
/// `method`, `classMethod`, `property` and `flag`.
struct MethodRow {
    const char* selector = nullptr;
    FunctionPlace implementation = nullptr;
    const char* types = nullptr;
    const PropertyRow* property = nullptr; ///< null for plain methods
    Side side = Side::instance;
};

/// Adds the row's methods and property to a class, where it does not have them already.
[[gnu::cold]] void addMethod(const MethodRow& row, Class cls);

namespace detail {

/// Result, class and argument types of a member function, or the type of a data member.
template <class Member>
struct MemberType;
template <class R, class C, class... A>
struct MemberType<R (C::*)(A...)> {
    using Owner = C;
    using Result = R;
    static constexpr std::size_t argumentCount = sizeof...(A);
    using Signature = R(A...);
};
template <class R, class C, class... A>
struct MemberType<R (C::*)(A...) const> {
    using Owner = C;
    using Result = R;
    static constexpr std::size_t argumentCount = sizeof...(A);
    using Signature = R(A...);
};
template <class T, class C>
requires(!std::is_function_v<T>) struct MemberType<T C::*> {
    using Owner = C;
    using Result = T;
    static constexpr std::size_t argumentCount = 0;
    using Signature = Lent<T>();
    using Value = T;
};

template <auto Member, class Signature = typename MemberType<decltype(Member)>::Signature>
struct Trampoline;

/// The function that the runtime calls: finds the peer, calls the member.
template <auto Member, class R, class... A>
struct Trampoline<Member, R(A...)> {
    using Owner = typename MemberType<decltype(Member)>::Owner;
    static Passed<R> call(id self, [[maybe_unused]] SEL name, Passed<A>... arguments) {
        auto&& peer = Owner::of(wrap(self));
        if constexpr (std::is_member_object_pointer_v<decltype(Member)>) {
            return peer.*Member;
        } else if constexpr (Owner::border == Boundary::propagates) {
            return (peer.*Member)(received<Lent<A>>(arguments)...);
        } else {
            try {
                return (peer.*Member)(received<Lent<A>>(arguments)...);
            } catch (...) {
                reportSwallowed(name);
            }
            return zero<Passed<R>>();
        }
    }
};

/// Assigns to a data member, then tells the peer.
template <auto Member, auto Changed>
struct Assignment {
    using Owner = typename MemberType<decltype(Member)>::Owner;
    using Value = typename MemberType<decltype(Member)>::Value;
    static void call(id self, [[maybe_unused]] SEL name, Passed<Value> value) {
        Owner& peer = Owner::of(wrap(self));
        peer.*Member = received<Lent<Value>>(value);
        if constexpr (!std::is_null_pointer_v<decltype(Changed)>) {
            constexpr auto tell = &Trampoline<Changed>::call;
            tell(self, name);
        }
    }
};

template <Literal Name>
inline constexpr auto setterOf = setterName(Name);
template <Literal Name>
inline constexpr auto flagGetterOf = flagGetterName(Name);
template <class Signature>
inline constexpr const char* types = MethodEncoding<Signature>::value.data();
/// Where a class plays the platform, its methods tell the classes of their arguments too
/// (`declaredTypes`). So do all class methods, which do not say whose they are.
template <class Owner, class Signature>
inline constexpr const char* typesIn = [] {
    if constexpr (Owner::border == Boundary::propagates) {
        return ClassedMethodEncoding<Signature>::value.data();
    } else {
        return types<Signature>;
    }
}();
template <class T>
inline constexpr auto encoded = encodingOf<Lent<T>>();

template <class T>
constexpr const char* ownership() {
    if constexpr (std::is_same_v<T, Copied<Lent<T>>>) {
        return "C";
    } else if constexpr (std::is_same_v<T, Strong<Lent<T>>>) {
        return "&";
    } else if constexpr (std::is_same_v<T, Weak<Lent<T>>>) {
        return "W";
    } else {
        return nullptr;
    }
}

/// The function that the runtime calls for a class method.
template <auto Function, class Type = decltype(Function)>
struct ClassTrampoline;
template <auto Function, class R, class... A>
struct ClassTrampoline<Function, R (*)(Class, A...)> {
    using Signature = Lent<R>(A...);
    static Passed<R> call(Class self, SEL, Passed<A>... arguments) {
        return Function(self, received<Lent<A>>(arguments)...);
    }
};

/// What a property in a data member has beyond its getter.
template <Literal Name, auto Member, auto Changed>
inline constexpr PropertyRow assignable{
    Name.data(),
    setterOf<Name>.data(),
    &placed<&Assignment<Member, Changed>::call>,
    typesIn<typename MemberType<decltype(Member)>::Owner,
            void(Lent<typename MemberType<decltype(Member)>::Value>)>,
    encoded<typename MemberType<decltype(Member)>::Value>.data(),
    ownership<typename MemberType<decltype(Member)>::Value>()};

/// What a property with a setter of its own has beyond its getter.
template <Literal Name, auto Getter, auto Setter>
inline constexpr PropertyRow computed{Name.data(),
                                      setterOf<Name>.data(),
                                      &placed<&Trampoline<Setter>::call>,
                                      typesIn<typename MemberType<decltype(Setter)>::Owner,
                                              typename MemberType<decltype(Setter)>::Signature>,
                                      encoded<typename MemberType<decltype(Getter)>::Result>.data(),
                                      nullptr};

} // namespace detail

/// An instance method: `method<"drawRect:", &Grip::drawRect>()`. A data member answers its value.
template <Literal Selector, auto Member>
constexpr MethodRow method() {
    using Type = detail::MemberType<decltype(Member)>;
    static_assert(argumentCount(Selector) == Type::argumentCount,
                  "a selector has one colon for each argument");
    return {Selector.data(), &placed<&detail::Trampoline<Member>::call>,
            detail::typesIn<typename Type::Owner, typename Type::Signature>};
}

/// A class method, a static function that takes the receiving class first:
/// `classMethod<"colorWithWhite:alpha:", &Color::withWhite>()`.
template <Literal Selector, auto Function>
constexpr MethodRow classMethod() {
    using Call = detail::ClassTrampoline<Function>;
    return {Selector.data(), &placed<&Call::call>,
            ClassedMethodEncoding<typename Call::Signature>::value.data(), nullptr, Side::type};
}

/// A property kept in a data member, with its getter and setter; `Changed`, when given, is a member
/// function that is called after each assignment. The member's type says who owns the value
/// (`Strong`, `Copied`, `Weak` or a plain value): `property<"textColor", &Label::textColor_,
/// &Label::redraw>()`.
template <Literal Name, auto Member, auto Changed = nullptr>
requires(!std::is_member_function_pointer_v<decltype(Member)>) constexpr MethodRow property() {
    MethodRow row = method<Name, Member>();
    row.property = &detail::assignable<Name, Member, Changed>;
    return row;
}

/// A property with a getter and a setter of its own: `property<"frame", &View::frame,
/// &View::setFrame>()`.
template <Literal Name, auto Getter, auto Setter>
requires(std::is_member_function_pointer_v<decltype(Getter)>) constexpr MethodRow property() {
    static_assert(detail::MemberType<decltype(Setter)>::argumentCount == 1);
    MethodRow row = method<Name, Getter>();
    row.property = &detail::computed<Name, Getter, Setter>;
    return row;
}

/// A boolean property whose getter begins with "is": `flag<"hidden", &View::hidden_>()` answers
/// `isHidden` and `setHidden:`.
template <Literal Name, auto Member, auto Changed = nullptr>
constexpr MethodRow flag() {
    MethodRow row = property<Name, Member, Changed>();
    row.selector = detail::flagGetterOf<Name>.data();
    return row;
}

} // namespace objc
