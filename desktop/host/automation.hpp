// Driving the application by requests, one JSON object a line.
#pragma once

#include "desktop/host/streams.hpp"
#include "desktop/host/values.hpp"

namespace desktop::host {

/// Answers requests until one says to quit, the input ends, nobody reads the answers, or the
/// process is asked to stop. Main thread, on which the application's own work runs too.
void automate(Streams& streams, Values& values);

} // namespace desktop::host
