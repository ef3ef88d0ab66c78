// What a service that runs in this process says to a request.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace desktop::services {

/// Names and values.
using Headers = std::vector<std::pair<std::string, std::string>>;

struct Answer {
    int status = 200;
    std::string contentType = "application/json";
    std::string body;
    /// Seconds of real time until the answer is sent.
    double delay = 0;
    /// Closes the connection instead of answering.
    bool dropped = false;
    /// Beside the content's type and length.
    Headers headers = {};
    /// What the answer says its body's length is, when not the truth. The connection is closed
    /// behind the body then.
    std::optional<std::uint64_t> length = {};
    /// After how many bytes of the body the connection breaks off.
    std::optional<std::size_t> cut = {};
    /// Bytes of the body in a second of real time; 0: all at once.
    double rate = 0;
};

/// What is to be different in a service's answers; what is missing stays as it is.
struct AnswerChange {
    std::optional<int> status;
    std::optional<std::string> body;
    std::optional<double> delay;
    std::optional<bool> dropped;
    Headers headers;
    std::optional<std::uint64_t> length;
    std::optional<std::size_t> cut;
    std::optional<double> rate;

    [[nodiscard]] Answer appliedTo(Answer answer) const {
        answer.status = status.value_or(answer.status);
        answer.body = body.value_or(std::move(answer.body));
        answer.delay = delay.value_or(answer.delay);
        answer.dropped = dropped.value_or(answer.dropped);
        answer.headers.insert(answer.headers.end(), headers.begin(), headers.end());
        answer.length = length ? length : answer.length;
        answer.cut = cut ? cut : answer.cut;
        answer.rate = rate.value_or(answer.rate);
        return answer;
    }
};

} // namespace desktop::services
