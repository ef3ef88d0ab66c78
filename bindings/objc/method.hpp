// Rows of a class's method table: a selector and the C++ member that answers it.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/encoding.hpp"

#include <functional>

namespace objc {

/// Whether a method belongs to the instances or to the class.
enum class Side { instance, type };

/// One row: what the runtime needs to know of a method, and of the property that it belongs to.
/// Made by `method`, `classMethod`, `property` and `flag`.
struct MethodRow {
    Side side = Side::instance;
    const char* selector = nullptr;
    IMP implementation = nullptr;
    const char* types = nullptr;
    /// A property's setter, null for plain methods.
    const char* setter = nullptr;
    IMP setterImplementation = nullptr;
    const char* setterTypes = nullptr;
    /// The property's name, its type's encoding and whether it keeps what is assigned ("&", "C").
    const char* property = nullptr;
    const char* propertyType = nullptr;
    const char* propertyOwnership = nullptr;
};

/// Adds the row's methods and property to a class that is being made.
void addMethod(const MethodRow& row, Class cls);

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
    static Passed<R> call(id self, SEL name, Passed<A>... arguments) {
        auto body = [&]() -> Passed<R> {
            return std::invoke(Member, Owner::of(wrap(self)), received<Lent<A>>(arguments)...);
        };
        if constexpr (Owner::border == Boundary::contained) {
            return contained(sel_getName(name), body);
        } else {
            return body();
        }
    }
};

/// Assigns to a data member, then tells the peer.
template <auto Member, auto Changed>
struct Assignment {
    using Owner = typename MemberType<decltype(Member)>::Owner;
    using Value = typename MemberType<decltype(Member)>::Value;
    static void call(id self, SEL, Passed<Value> value) {
        Owner& peer = Owner::of(wrap(self));
        peer.*Member = received<Lent<Value>>(value);
        if constexpr (!std::is_null_pointer_v<decltype(Changed)>) {
            std::invoke(Changed, peer);
        }
    }
};

template <Literal Name>
inline constexpr auto setterOf = setterName(Name);
template <Literal Name>
inline constexpr auto flagGetterOf = flagGetterName(Name);
template <class Signature>
inline constexpr const char* types = MethodEncoding<Signature>::value.data();
template <class T>
inline constexpr auto encoded = encodingOf<Lent<T>>();

template <class T>
constexpr const char* ownership() {
    if constexpr (std::is_same_v<T, Copied<Lent<T>>>) {
        return "C";
    } else if constexpr (std::is_same_v<T, Strong<Lent<T>>>) {
        return "&";
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

} // namespace detail

/// An instance method: `method<"drawRect:", &Grip::drawRect>()`. A data member answers its value.
template <Literal Selector, auto Member>
MethodRow method() {
    using Type = detail::MemberType<decltype(Member)>;
    static_assert(argumentCount(Selector) == Type::argumentCount,
                  "a selector has one colon for each argument");
    MethodRow row;
    row.selector = Selector.data();
    row.implementation = reinterpret_cast<IMP>(&detail::Trampoline<Member>::call);
    row.types = detail::types<typename Type::Signature>;
    return row;
}

/// A class method, a static function that takes the receiving class first:
/// `classMethod<"colorWithWhite:alpha:", &Color::withWhite>()`.
template <Literal Selector, auto Function>
MethodRow classMethod() {
    using Call = detail::ClassTrampoline<Function>;
    MethodRow row;
    row.side = Side::type;
    row.selector = Selector.data();
    row.implementation = reinterpret_cast<IMP>(&Call::call);
    row.types = detail::types<typename Call::Signature>;
    return row;
}

/// A property kept in a data member, with its getter and setter; `Changed`, when given, is a member
/// function that is called after each assignment. The member's type says who owns the value
/// (`Strong`, `Copied` or a plain value): `property<"textColor", &Label::textColor_,
/// &Label::redraw>()`.
template <Literal Name, auto Member, auto Changed = nullptr>
requires(!std::is_member_function_pointer_v<decltype(Member)>) MethodRow property() {
    using Value = typename detail::MemberType<decltype(Member)>::Value;
    MethodRow row = method<Name, Member>();
    row.setter = detail::setterOf<Name>.data();
    row.setterImplementation = reinterpret_cast<IMP>(&detail::Assignment<Member, Changed>::call);
    row.setterTypes = detail::types<void(Lent<Value>)>;
    row.property = Name.data();
    row.propertyType = detail::encoded<Value>.data();
    row.propertyOwnership = detail::ownership<Value>();
    return row;
}

/// A property with a getter and a setter of its own: `property<"frame", &View::frame,
/// &View::setFrame>()`.
template <Literal Name, auto Getter, auto Setter>
requires(std::is_member_function_pointer_v<decltype(Getter)>) MethodRow property() {
    MethodRow row = method<Name, Getter>();
    const MethodRow setter = method<detail::setterOf<Name>, Setter>();
    row.setter = setter.selector;
    row.setterImplementation = setter.implementation;
    row.setterTypes = setter.types;
    row.property = Name.data();
    row.propertyType =
        detail::encoded<typename detail::MemberType<decltype(Getter)>::Result>.data();
    return row;
}

/// A boolean property whose getter begins with "is": `flag<"hidden", &View::hidden_>()` answers
/// `isHidden` and `setHidden:`.
template <Literal Name, auto Member, auto Changed = nullptr>
MethodRow flag() {
    MethodRow row = property<Name, Member, Changed>();
    row.selector = detail::flagGetterOf<Name>.data();
    return row;
}

} // namespace objc
