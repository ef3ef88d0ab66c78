// The host's side of the borders: Linux's code on every machine.
#include "tests/host/borders/gate.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/objc/peer.hpp"

#include <initializer_list>
#include <stdexcept>

namespace {

using tests::Fault;
using tests::Gate;

class GatePeer
    : public objc::Peer<GatePeer, Gate, objc::Boundary::propagates, objc::Methods::atOnce> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::classMethod<"gate", &GatePeer::gate>(),
            objc::method<"open:", &GatePeer::open>(),
            objc::method<"openThroughHook:", &GatePeer::open>(),
            objc::method<"openThroughExchange:", &GatePeer::open>(),
            objc::method<"openTwice:", &GatePeer::open>(),
            objc::method<"ask:of:with:", &GatePeer::ask>(),
            objc::method<"negated:", &GatePeer::negated>(),
            objc::method<"negatedSingle:", &GatePeer::negatedSingle>(),
            objc::method<"moved:by:", &GatePeer::moved>(),
            objc::method<"exchanged:", &GatePeer::exchanged>(),
            objc::method<"grown:twice:", &GatePeer::grown>(),
            objc::method<"last:and:and:", &GatePeer::last>(),
            objc::method<"alike::::", &GatePeer::alike>(),
            objc::method<"digits:::::::::", &GatePeer::digits>(),
            objc::method<"fractions::::::::::", &GatePeer::fractions>(),
            objc::method<"rise:::::::::", &GatePeer::rise>(),
        };
    }

private:
    static Gate gate(Class) { return Gate::make(); }

    long open(Fault fault) {
        using namespace ns::literals;
        switch (fault) {
        case Fault::objectiveC:
            ns::Exception::with(u"Closed"_ns, u"by the host"_ns).raise();
        case Fault::cxx:
            throw std::runtime_error("closed by the host");
        default:
            return 7;
        }
    }

    /// Sends the message with a whole register as its argument, however small that is.
    long ask(SEL name, objc::Object receiver, long bits) {
        const IMP function = class_getMethodImplementation(object_getClass(receiver.raw()), name);
        return reinterpret_cast<long (*)(id, SEL, long)>(function)(receiver.raw(), name, bits);
    }

    double negated(double number) { return -number; }
    float negatedSingle(float number) { return -number; }
    CGRect moved(CGRect rect, CGPoint by) {
        return {{rect.origin.x + by.x, rect.origin.y + by.y}, rect.size};
    }
    CGAffineTransform exchanged(CGAffineTransform of) {
        return {of.d, of.c, of.b, of.a, of.ty, of.tx};
    }
    ns::Range grown(ns::Range range, bool twice) {
        return {range.location, range.length * (twice ? 4 : 2)};
    }
    CGRect last(CGRect, CGRect, CGRect three) { return three; }
    bool alike(CGRect, CGRect, CGRect three, CGRect four) { return three == four; }
    long digits(long a, long b, long c, long d, long e, long f, long g, long h, long i) {
        long number = 0;
        for (const long digit : {a, b, c, d, e, f, g, h, i}) {
            number = 10 * number + digit;
        }
        return number;
    }
    double fractions(double a, double b, double c, double d, double e, double f, double g, double h,
                     double i, double j) {
        double number = 0;
        for (const double digit : {j, i, h, g, f, e, d, c, b, a}) {
            number = number / 2 + digit;
        }
        return number;
    }
    bool rise(long a, long b, long c, long d, long e, long f, long g, long h, long i) {
        return a < b && b < c && c < d && d < e && e < f && f < g && g < h && h < i;
    }
};

/// What a compiler that widens nothing may leave in the register of a small result.
long bits(id, SEL, long bits) { return bits; }

long taken(id, SEL, signed char number) { return number; }

long callBlock(id, SEL, objc::detail::BlockHeader* block, long bits) {
    return reinterpret_cast<long (*)(void*, long)>(block->invoke)(block, bits);
}

/// The host's classes exist before a library is loaded.
[[gnu::constructor(200)]] void registerGate() {
    const Class cls = GatePeer::registerClass();
    const auto add = [cls](const char* name, auto* function, const char* types) {
        class_addMethod(cls, sel_registerName(name), reinterpret_cast<IMP>(function), types);
    };
    add("flag:", &bits, "B@:q");
    add("signedByte:", &bits, "c@:q");
    add("signedByteThroughHook:", &bits, "c@:q");
    add("signedByteThroughExchange:", &bits, "c@:q");
    add("unsignedByte:", &bits, "C@:q");
    add("signedHalf:", &bits, "s@:q");
    add("unsignedHalf:", &bits, "S@:q");
    add("takeThroughHook:", &taken, "q@:c");
    add("takeThroughExchange:", &taken, "q@:c");
    add("call:with:", &callBlock, "q@:@?q");
}

} // namespace
