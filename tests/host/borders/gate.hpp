// A class of the host's that the borders' library knows: what crosses between both passes it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/range.hpp"
#include "bindings/foundation/string.hpp"
#include "bindings/objc/block.hpp"

namespace tests {

/// How a method of the gate fails.
enum class Fault : long {
    none,
    objectiveC, ///< by the exception "Closed"
    cxx,        ///< by a C++ exception
};

struct Gate : objc::Kind<Gate, "Gate"> {
    using Kind::Kind;

    static Gate gate() { return sendClass<"gate", Gate>(); }
    /// Fails in that way, or answers 7.
    [[nodiscard]] long open(Fault fault) const { return send<"open:", long>(fault); }

    // These answer the lowest bits of what they get, and leave the result's other bits as they
    // were.
    [[nodiscard]] bool flag(long bits) const { return send<"flag:", bool>(bits); }
    [[nodiscard]] signed char signedByte(long bits) const {
        return send<"signedByte:", signed char>(bits);
    }
    [[nodiscard]] unsigned char unsignedByte(long bits) const {
        return send<"unsignedByte:", unsigned char>(bits);
    }
    [[nodiscard]] short signedHalf(long bits) const { return send<"signedHalf:", short>(bits); }
    [[nodiscard]] char16_t unsignedHalf(long bits) const {
        return send<"unsignedHalf:", char16_t>(bits);
    }
    /// Calls the block with that register as its argument.
    [[nodiscard]] long call(objc::Block<long(signed char)> block, long bits) const {
        return send<"call:with:", long>(block, bits);
    }

    // Each answers what its name says.
    [[nodiscard]] double negated(double number) const { return send<"negated:", double>(number); }
    [[nodiscard]] float negatedSingle(float number) const {
        return send<"negatedSingle:", float>(number);
    }
    [[nodiscard]] CGRect moved(CGRect rect, CGPoint by) const {
        return send<"moved:by:", CGRect>(rect, by);
    }
    [[nodiscard]] CGAffineTransform exchanged(CGAffineTransform transform) const {
        return send<"exchanged:", CGAffineTransform>(transform);
    }
    [[nodiscard]] ns::Range grown(ns::Range range, bool twice) const {
        return send<"grown:twice:", ns::Range>(range, twice);
    }
    [[nodiscard]] CGRect last(CGRect one, CGRect two, CGRect three) const {
        return send<"last:and:and:", CGRect>(one, two, three);
    }
    /// Whether the last two are the same.
    [[nodiscard]] bool alike(CGRect one, CGRect two, CGRect three, CGRect four) const {
        return send<"alike::::", bool>(one, two, three, four);
    }
    /// A number with one digit for each argument.
    [[nodiscard]] long digits(long a, long b, long c, long d, long e, long f, long g, long h,
                              long i) const {
        return send<"digits:::::::::", long>(a, b, c, d, e, f, g, h, i);
    }
    [[nodiscard]] double fractions(double a, double b, double c, double d, double e, double f,
                                   double g, double h, double i, double j) const {
        return send<"fractions::::::::::", double>(a, b, c, d, e, f, g, h, i, j);
    }
    /// Whether they rise.
    [[nodiscard]] bool rise(long a, long b, long c, long d, long e, long f, long g, long h,
                            long i) const {
        return send<"rise:::::::::", bool>(a, b, c, d, e, f, g, h, i);
    }
};

} // namespace tests
