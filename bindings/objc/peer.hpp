// Objective-C classes written in C++: a C++ object, the peer, lives inside each instance.
#pragma once

#include "bindings/objc/method.hpp"

#include <bit>
#include <memory>
#include <new>

namespace objc {

/// The base of a class written in C++:
///
///     class Grip : public objc::Peer<Grip, GripKind> {
///     public:
///         static auto methods() {
///             return std::array{objc::method<"drawRect:", &Grip::drawRect>()};
///         }
///     private:
///         void drawRect(CGRect dirty);
///     };
///
/// `Kind` names the class and its superclass (an `objc::Kind`). The peer is constructed inside the
/// instance when the object is allocated, after the superclass's peer, and destroyed when it is
/// deallocated. `methods()` is the only place that knows selectors; type encodings come from the
/// member functions' types.
template <class Self, class KindOfSelf, Boundary Border = Boundary::contained>
class Peer {
public:
    using Kind = KindOfSelf;
    static constexpr Boundary border = Border;

    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// Makes the class known to the runtime, after its superclass. When the process has a class of
    /// that name already (an application's own), that one stays and null is returned.
    static Class registerClass();

    /// The class made by `registerClass`; null before, or when the name was taken.
    static Class registeredClass() { return registered_; }

    /// The peer inside `object`, which must be an instance of the class or of a subclass.
    static Self& of(Object object) {
        return *reinterpret_cast<Self*>(reinterpret_cast<std::byte*>(object.raw()) + offset_);
    }

    /// The object that this peer lives in.
    [[nodiscard]] Kind self() const {
        // The object is not const because its peer is looked at.
        auto* bytes = reinterpret_cast<std::byte*>(const_cast<Peer*>(this));
        return wrap<Kind>(reinterpret_cast<id>(bytes - offset_));
    }

protected:
    Peer() = default;
    ~Peer() = default;

    /// Sends the message to the superclass's implementation.
    template <Literal Name, class Result = void, class... Arguments>
    Result super(Arguments... arguments) const {
        return sendSuper<Name, Result>(class_getSuperclass(registered_), self().raw(),
                                       arguments...);
    }

private:
    static id allocate(id cls, SEL name, void* zone) {
        const id instance =
            invoke<id>(class_getMethodImplementation(
                           object_getClass(object(class_getSuperclass(registered_))), name),
                       cls, name, zone);
        if (instance != nullptr) {
            new (&of(wrap(instance))) Self();
        }
        return instance;
    }
    static void deallocate(id instance, SEL name) {
        std::destroy_at(&of(wrap(instance)));
        invoke<void>(class_getMethodImplementation(class_getSuperclass(registered_), name),
                     instance, name);
    }

    static inline Class registered_ = nullptr;
    static inline std::ptrdiff_t offset_ = 0;
};

template <class Self, class Kind, Boundary Border>
Class Peer<Self, Kind, Border>::registerClass() {
    const Class made =
        objc_lookUpClass(Kind::className.data()) != nullptr
            ? nullptr
            : objc_allocateClassPair(Kind::Superkind::classObject(), Kind::className.data(), 0);
    if (made == nullptr) {
        return nullptr;
    }
    registered_ = made;
    // Named after the class: a superclass's peer has a variable of its own.
    class_addIvar(made, Kind::className.data(), sizeof(Self),
                  static_cast<unsigned char>(std::countr_zero(alignof(Self))), "?");
    const Class meta = object_getClass(object(made));
    class_addMethod(meta, selector<"allocWithZone:">(), reinterpret_cast<IMP>(&allocate), "@@:^v");
    class_addMethod(made, selector<"dealloc">(), reinterpret_cast<IMP>(&deallocate), "v@:");
    for (const MethodRow& row : Self::methods()) {
        addMethod(row, made);
    }
    objc_registerClassPair(made);
    offset_ = ivar_getOffset(class_getInstanceVariable(made, Kind::className.data()));
    return made;
}

} // namespace objc
