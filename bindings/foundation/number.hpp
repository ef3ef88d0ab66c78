// NSNumber.
#pragma once

#include "bindings/foundation/value.hpp"

namespace ns {

struct Number : objc::Kind<Number, "NSNumber", Value> {
    using Kind::Kind;

    static Number from(double value) { return sendClass<"numberWithDouble:", Number>(value); }
    static Number from(long long value) { return sendClass<"numberWithLongLong:", Number>(value); }
    static Number from(unsigned long long value) {
        return sendClass<"numberWithUnsignedLongLong:", Number>(value);
    }
    static Number from(bool value) { return sendClass<"numberWithBool:", Number>(value); }

    [[nodiscard]] double doubleValue() const { return send<"doubleValue", double>(); }
    [[nodiscard]] float floatValue() const { return send<"floatValue", float>(); }
    [[nodiscard]] bool boolValue() const { return send<"boolValue", bool>(); }
    [[nodiscard]] long long integerValue() const { return send<"longLongValue", long long>(); }
    [[nodiscard]] unsigned long long unsignedValue() const {
        return send<"unsignedLongLongValue", unsigned long long>();
    }
    [[nodiscard]] const char* type() const { return send<"objCType", const char*>(); }
};

} // namespace ns
