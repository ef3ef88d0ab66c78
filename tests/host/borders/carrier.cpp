// The library's side of values: each method takes them from the host, hands them on to the gate,
// and answers what that answers.
#include "tests/host/borders/gate.hpp"
#include "tests/host/borders/library.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/objc/peer.hpp"

#include <bit>

namespace tests {
namespace {

struct Carrier : objc::Kind<Carrier, "Carrier"> {
    using Kind::Kind;
};

/// What the replacement below got from the method that was there before.
long answeredToReplacement = 0;

signed char listen(objc::Next<signed char(long)> next, Gate, long bits) {
    const signed char answer = next(bits);
    answeredToReplacement = answer; // NOLINT(bugprone-signed-char-misuse): it is a number
    return answer;
}

/// Reads its argument before the method that was there before does.
long take(objc::Next<long(signed char)> next, Gate, signed char number) {
    return 100L * number + next(number);
}

constexpr std::array hooks{
    objc::hook<"signedByteThroughHook:", &listen>(),
    objc::exchange<"signedByteThroughExchange:", "formerSignedByte:", &listen>(),
    objc::hook<"takeThroughHook:", &take>(),
    objc::exchange<"takeThroughExchange:", "formerTake:", &take>(),
};

class CarrierPeer : public objc::Peer<CarrierPeer, Carrier> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"takeFlag:", &CarrierPeer::takeFlag>(),
            objc::method<"takeSignedByte:", &CarrierPeer::take<signed char>>(),
            objc::method<"takeUnsignedByte:", &CarrierPeer::take<unsigned char>>(),
            objc::method<"takeSignedHalf:", &CarrierPeer::take<short>>(),
            objc::method<"takeUnsignedHalf:", &CarrierPeer::take<char16_t>>(),
            objc::method<"takeInBlocks:", &CarrierPeer::takeInBlocks>(),
            objc::method<"getFlag:", &CarrierPeer::getFlag>(),
            objc::method<"getSignedByte:", &CarrierPeer::get<&Gate::signedByte>>(),
            objc::method<"getUnsignedByte:", &CarrierPeer::get<&Gate::unsignedByte>>(),
            objc::method<"getSignedHalf:", &CarrierPeer::get<&Gate::signedHalf>>(),
            objc::method<"getUnsignedHalf:", &CarrierPeer::get<&Gate::unsignedHalf>>(),
            objc::method<"getThroughHook:", &CarrierPeer::getThrough<"signedByteThroughHook:">>(),
            objc::method<"getThroughExchange:",
                         &CarrierPeer::getThrough<"signedByteThroughExchange:">>(),
            objc::method<"negated:", &CarrierPeer::negated>(),
            objc::method<"negatedSingle:", &CarrierPeer::negatedSingle>(),
            objc::method<"moved:by:", &CarrierPeer::moved>(),
            objc::method<"exchanged:", &CarrierPeer::exchanged>(),
            objc::method<"grown:twice:", &CarrierPeer::grown>(),
            objc::method<"last:and:and:", &CarrierPeer::last>(),
            objc::method<"alike::::", &CarrierPeer::alike>(),
            objc::method<"movedByNobody:by:", &CarrierPeer::movedByNobody>(),
            objc::method<"grownByNobody:twice:", &CarrierPeer::grownByNobody>(),
            objc::method<"digits:::::::::", &CarrierPeer::digits>(),
            objc::method<"fractions::::::::::", &CarrierPeer::fractions>(),
            objc::method<"rise:::::::::", &CarrierPeer::rise>(),
        };
    }

private:
    // What the compiler makes of a small integer when it has to fill a register.

    long takeFlag(bool flag) { return flag ? 1 : 0; }
    template <class Small>
    long take(Small number) {
        return number;
    }
    long takeInBlocks(long bits) {
        return gate_.call(
            objc::Block<long(signed char)>::from([](signed char number) -> long { return number; }),
            bits);
    }
    long getFlag(long bits) { return gate_.flag(bits) ? 1 : 0; }
    template <auto ask>
    long get(long bits) {
        return (gate_.*ask)(bits);
    }
    template <objc::Literal name>
    long getThrough(long bits) {
        static_cast<void>(gate_.send<name, signed char>(bits));
        return answeredToReplacement;
    }

    // Numbers travel as their bits to and from the test, which has no text for some of them.

    unsigned long negated(unsigned long bits) {
        return std::bit_cast<unsigned long>(gate_.negated(std::bit_cast<double>(bits)));
    }
    unsigned negatedSingle(unsigned bits) {
        return std::bit_cast<unsigned>(gate_.negatedSingle(std::bit_cast<float>(bits)));
    }

    CGRect moved(CGRect rect, CGPoint by) { return gate_.moved(rect, by); }
    CGAffineTransform exchanged(CGAffineTransform of) { return gate_.exchanged(of); }
    ns::Range grown(ns::Range range, bool twice) { return gate_.grown(range, twice); }
    CGRect last(CGRect one, CGRect two, CGRect three) { return gate_.last(one, two, three); }
    bool alike(CGRect one, CGRect two, CGRect three, CGRect four) {
        return gate_.alike(one, two, three, four);
    }
    CGRect movedByNobody(CGRect rect, CGPoint by) { return Gate().moved(rect, by); }
    ns::Range grownByNobody(ns::Range range, bool twice) { return Gate().grown(range, twice); }
    long digits(long a, long b, long c, long d, long e, long f, long g, long h, long i) {
        return gate_.digits(a, b, c, d, e, f, g, h, i);
    }
    double fractions(double a, double b, double c, double d, double e, double f, double g, double h,
                     double i, double j) {
        return gate_.fractions(a, b, c, d, e, f, g, h, i, j);
    }
    bool rise(long a, long b, long c, long d, long e, long f, long g, long h, long i) {
        return gate_.rise(a, b, c, d, e, f, g, h, i);
    }

    objc::Strong<Gate> gate_{Gate::gate()};
};

} // namespace

void registerCarrier() {
    CarrierPeer::registerClass();
    for (const objc::Change& hook : hooks) {
        objc::install(hook);
        objc::install(hook); // once more, which changes nothing
    }
}

} // namespace tests
