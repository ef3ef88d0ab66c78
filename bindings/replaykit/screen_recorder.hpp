// RPScreenRecorder: records the application's screen.
#pragma once

#include "bindings/objc/kind.hpp"

namespace rp {

struct ScreenRecorder : objc::Kind<ScreenRecorder, "RPScreenRecorder"> {
    using Kind::Kind;

    /// Nil where the framework is not loaded.
    static ScreenRecorder sharedRecorder() { return sendClass<"sharedRecorder", ScreenRecorder>(); }
};

} // namespace rp
