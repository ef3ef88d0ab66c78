// What a service that runs in this process says to a request.
#pragma once

#include <optional>
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

/// What is to be different in a service's answers; what is missing stays as it is.
struct AnswerChange {
    std::optional<int> status;
    std::optional<std::string> body;
    std::optional<double> delay;
    std::optional<bool> dropped;

    [[nodiscard]] Answer appliedTo(const Answer& answer) const {
        return {status.value_or(answer.status), answer.contentType, body.value_or(answer.body),
                delay.value_or(answer.delay), dropped.value_or(answer.dropped)};
    }
};

} // namespace desktop::services
