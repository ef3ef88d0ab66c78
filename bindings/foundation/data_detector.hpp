// NSDataDetector: finds what people write in texts.
#pragma once

#include "bindings/foundation/regular_expression.hpp"

namespace ns {

struct DataDetector : objc::Kind<DataDetector, "NSDataDetector", RegularExpression> {
    using Kind::Kind;

    /// Nil where one of the types cannot be detected.
    static DataDetector withTypes(TextCheckingType types) {
        return sendClass<"dataDetectorWithTypes:error:", DataDetector>(types,
                                                                       static_cast<void*>(nullptr));
    }
};

} // namespace ns
