// A host's class for the tests of hooks: each test makes one of its own, by name.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/peer.hpp"

namespace tests {

template <objc::Literal Name>
struct Bell : objc::Kind<Bell<Name>, Name> {
    [[nodiscard]] int ring(int times) const { return this->template send<"ring:", int>(times); }
};

/// Answers a value of each kind, none of them zero.
template <objc::Literal Name>
class BellPeer : public objc::Peer<BellPeer<Name>, Bell<Name>, objc::Boundary::propagates> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"ring:", &BellPeer::ring>(),
            objc::method<"toll:", &BellPeer::toll>(),
            objc::method<"crack", &BellPeer::crack>(),
            objc::method<"pitch", &BellPeer::pitch>(),
            objc::method<"isHeard", &BellPeer::isHeard>(),
            objc::method<"tone", &BellPeer::tone>(),
            objc::method<"place", &BellPeer::place>(),
            objc::method<"swing", &BellPeer::swing>(),
            objc::method<"stop", &BellPeer::stop>(),
            objc::classMethod<"count", &BellPeer::count>(),
        };
    }
    static inline int calls = 0;

private:
    int ring(int times) {
        ++calls;
        return times;
    }
    int toll(int times) { return 100 * times; }
    void crack() {
        using namespace ns::literals;
        ns::Exception::with(u"Cracked"_ns, u"by the host"_ns).raise();
    }
    [[nodiscard]] double pitch() const { return 1.5; }
    [[nodiscard]] bool isHeard() const { return true; }
    [[nodiscard]] ns::String tone() const {
        using namespace ns::literals;
        return u"钟"_ns;
    }
    [[nodiscard]] CGPoint place() const { return {1, 2}; }
    [[nodiscard]] CGAffineTransform swing() const { return {1, 2, 3, 4, 5, 6}; }
    void stop() { ++calls; }
    static int count(Class) { return 1; }
};

/// A new bell of the class with that name, which is made at the first one.
template <objc::Literal Name>
Bell<Name> bell() {
    BellPeer<Name>::registerClass();
    return Bell<Name>::make();
}

/// A class that inherits everything from the bells of that name.
template <objc::Literal Name, objc::Literal Parent>
struct Handbell : objc::Kind<Handbell<Name, Parent>, Name, Bell<Parent>> {};
template <objc::Literal Name, objc::Literal Parent>
class HandbellPeer : public objc::Peer<HandbellPeer<Name, Parent>, Handbell<Name, Parent>> {
public:
    static constexpr std::array<objc::MethodRow, 0> methods() { return {}; }
};

/// A new bell of the class `Name`, which inherits from the bells of the class `Parent`.
template <objc::Literal Name, objc::Literal Parent>
Handbell<Name, Parent> handbell() {
    BellPeer<Parent>::registerClass();
    HandbellPeer<Name, Parent>::registerClass();
    return Handbell<Name, Parent>::make();
}

} // namespace tests
