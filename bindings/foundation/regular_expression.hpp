// NSRegularExpression: finds patterns in texts.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/result.hpp"
#include "bindings/foundation/text_checking_result.hpp"

namespace ns {

struct RegularExpression : objc::Kind<RegularExpression, "NSRegularExpression"> {
    using Kind::Kind;

    /// An error when the pattern is none.
    static Result<RegularExpression> withPattern(String pattern) {
        const ErrorPointer error;
        return error.result(
            sendClass<"regularExpressionWithPattern:options:error:", RegularExpression>(
                pattern, 0UL, error.out()));
    }
    /// What is found in that part of the text, in its order.
    [[nodiscard]] ArrayOf<TextCheckingResult> matches(String text, Range range) const {
        return send<"matchesInString:options:range:", ArrayOf<TextCheckingResult>>(text, 0UL,
                                                                                   range);
    }
};

} // namespace ns
