// NSOperation.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ns {

struct Operation : objc::Kind<Operation, "NSOperation"> {
    using Kind::Kind;

    /// Runs it here and now.
    void start() const { send<"start">(); }
};

} // namespace ns
