// Objective-C classes written in C++: a C++ object, the peer, lives inside each instance.
#pragma once

#include "bindings/objc/method.hpp"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <span>

namespace objc {

/// When the runtime comes to know a class's methods.
enum class Methods : std::uint8_t {
    /// To the class: a process that never sends one pays for the name only. The rows have no
    /// `initialize` of their own.
    withFirstMessage,
    atOnce, ///< for others to replace before anybody uses the class
};

namespace detail {

/// A class as it is declared to the runtime.
struct ClassDeclaration {
    const char* name;
    Class superclass;
    std::size_t peerSize;
    std::size_t peerAlignment;
    IMP initialise; ///< of a class whose methods come with the first message, else null
    IMP allocate;
    IMP deallocate;
};

/// What is known of a class once it is made.
struct MadeClass {
    Class cls = nullptr;
    std::ptrdiff_t peerOffset = 0;
};

/// Makes the class known to the runtime, with the methods of the rows or with what adds them later;
/// a null class when the name is taken.
[[gnu::cold]] MadeClass makeClass(const ClassDeclaration& declaration,
                                  std::span<const MethodRow> rows);

/// The first message to `cls`, which may be a subclass: adds the rows to the class itself, then
/// does what the superclass does.
[[gnu::cold]] void initialise(Class own, id cls, SEL name, std::span<const MethodRow> rows);

/// The superclass's allocation, for a new instance of `cls`.
id allocateBySuperclass(Class registered, Class cls, SEL name, void* zone);

/// The superclass's deallocation, for an instance whose peer is destroyed. The object is an
/// instance of the superclass from now on, as in C++: what is sent to it meanwhile reaches the
/// superclass's methods, and none that needs the peer.
void deallocateBySuperclass(Class registered, id instance, SEL name);

/// Whether the class's rows are known to the compiler.
template <class Self>
concept ConstantRows = requires {
    typename std::bool_constant<(Self::methods(), true)>;
};

} // namespace detail

/// Makes the methods known of every class that got no message yet: for those who list them. Main
/// thread.
void makeMethodsKnown();

/// The base of a class written in C++:
///
///     class GripPeer : public objc::Peer<GripPeer, Grip> {
///     public:
///         static constexpr auto methods() {
///             return std::array{objc::method<"drawRect:", &GripPeer::drawRect>()};
///         }
///     private:
///         void drawRect(CGRect dirty);
///     };
///
/// `Kind`, the handle, names the class and its superclass (an `objc::Kind`). The peer is
/// constructed inside the instance when the object is allocated, after the superclass's peer, and
/// destroyed when it is deallocated. `methods()` is the only place that knows selectors; type
/// encodings come from the member functions' types. Where it is `constexpr`, the rows are constants
/// of the image. The methods come at once or with the first message, as `Methods` says; a
/// superclass's
/// `+initialize` gets the class in any case.
template <class Self, class KindOfSelf, Boundary Border = Boundary::contained,
          Methods Known = Methods::withFirstMessage>
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
    static Class registeredClass() { return made_.cls; }

    /// The peer inside `object`, which must be an instance of the class or of a subclass.
    static Self& of(Object object) {
        return *reinterpret_cast<Self*>(reinterpret_cast<std::byte*>(object.raw()) +
                                        made_.peerOffset);
    }

    /// The object that this peer lives in.
    [[nodiscard]] Kind self() const {
        // The object is not const because its peer is looked at.
        auto* bytes = reinterpret_cast<std::byte*>(const_cast<Peer*>(this));
        return wrap<Kind>(reinterpret_cast<id>(bytes - made_.peerOffset));
    }

protected:
    Peer() = default;
    ~Peer() = default;

    /// Sends the message to the superclass's implementation.
    template <Literal Name, class Result = void, class... Arguments>
    Result super(Arguments... arguments) const {
        return sendSuper<Name, Result>(class_getSuperclass(made_.cls), self().raw(), arguments...);
    }

private:
    static void initialise(id cls, SEL name) {
        detail::initialise(Kind::classObject(), cls, name, rows());
    }
    static id allocate(id cls, SEL name, void* zone) {
        const id instance =
            detail::allocateBySuperclass(made_.cls, reinterpret_cast<Class>(cls), name, zone);
        if (instance != nullptr) {
            new (&of(wrap(instance))) Self();
        }
        return instance;
    }
    static void deallocate(id instance, SEL name) {
        std::destroy_at(&of(wrap(instance)));
        detail::deallocateBySuperclass(made_.cls, instance, name);
    }
    static auto rows() {
        if constexpr (detail::ConstantRows<Self>) {
            static constexpr auto constant = Self::methods();
            return std::span<const MethodRow>(constant);
        } else {
            return Self::methods();
        }
    }

    static detail::ClassDeclaration declaration() {
        constexpr bool isLate = Known == Methods::withFirstMessage;
        return {Kind::className.data(),
                Kind::Superkind::classObject(),
                sizeof(Self),
                alignof(Self),
                isLate ? reinterpret_cast<IMP>(&initialise) : nullptr,
                reinterpret_cast<IMP>(&allocate),
                reinterpret_cast<IMP>(&deallocate)};
    }

    static inline detail::MadeClass made_;
};

template <class Self, class Kind, Boundary Border, Methods Known>
Class Peer<Self, Kind, Border, Known>::registerClass() {
    const auto made = detail::makeClass(declaration(), rows());
    if (made.cls != nullptr) {
        made_ = made;
    }
    return made.cls;
}

} // namespace objc
