// NSDataDetector: finds what people write in texts.
#pragma once

#include "bindings/foundation/regular_expression.hpp"

namespace ns {

struct DataDetector : objc::Kind<DataDetector, "NSDataDetector", RegularExpression> {
    using Kind::Kind;

    /// Nil where the type cannot be detected.
    static DataDetector of(TextCheckingType type) {
        return sendClass<"dataDetectorWithTypes:error:", DataDetector>(type,
                                                                       static_cast<void*>(nullptr));
    }
};

} // namespace ns
