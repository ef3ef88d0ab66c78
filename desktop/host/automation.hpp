// Driving the application by requests, one JSON object a line.
#pragma once

#include "desktop/host/commands.hpp"
#include "desktop/host/streams.hpp"

namespace desktop::host {

/// Carries out a request, one line, and gives the response, one line; what is wrong with the
/// request, and what the application throws, is told in it. Main thread.
[[nodiscard]] std::string answer(Session& session, const std::string& line);

/// Answers requests until one says to quit, the input ends, nobody reads the answers, or the
/// process is asked to stop. Main thread, on which the application's own work runs too.
void automate(Streams& streams, Values& values);

} // namespace desktop::host
