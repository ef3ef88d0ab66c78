// The loop around the platform's run loop.
#include "desktop/host/main_loop.hpp"

#include "bindings/objc/boundary.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/runtime/stop_request.hpp"

#include <cstdio>
#include <limits>

namespace desktop::host {

void runWhatIsDue() {
    try {
        run_loop::runUntilIdle();
    } catch (...) {
        const objc::ExceptionText text = objc::describeCurrentException();
        std::fprintf(stderr, "uncaught: %s: %s\n", text.name.c_str(), text.reason.c_str());
    }
}

void runUntilStopped() {
    runWhatIsDue();
    while (!stop_request::isMade()) {
        run_loop::sleep(-1, std::numeric_limits<double>::infinity());
        runWhatIsDue();
    }
}

} // namespace desktop::host
