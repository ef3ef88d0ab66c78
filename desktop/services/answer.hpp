// What a service that runs in this process says to a request.
#pragma once

#include <string>

namespace desktop::services {

struct Answer {
    int status = 200;
    std::string contentType = "application/json";
    std::string body;
    /// Seconds of real time until the answer is sent.
    double delay = 0;
    /// Closes the connection instead of answering.
    bool dropped = false;
};

} // namespace desktop::services
