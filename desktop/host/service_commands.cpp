// The command that tells the host's services what to answer.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "desktop/services/loopback_names.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

int statusArgument(const Json& request) {
    constexpr std::uint64_t least = 100;
    constexpr std::uint64_t most = 599;
    const Json& value = anyArgument(request, "status");
    const auto status = value.is_number_unsigned() ? value.get<std::uint64_t>() : 0;
    if (status < least || status > most) {
        throw RequestError("\"status\" must be a whole number from 100 to 599");
    }
    return static_cast<int>(status);
}

services::Headers headersArgument(const Json& request) {
    services::Headers headers;
    const Json& values = anyArgument(request, "headers");
    if (!values.is_object()) {
        throw RequestError("\"headers\" must be an object");
    }
    for (const auto& [name, value] : values.items()) {
        if (!value.is_string()) {
            throw RequestError("\"headers\" must have strings as values");
        }
        headers.emplace_back(name, value.get<std::string>());
    }
    return headers;
}

std::uint64_t bytesArgument(const Json& request, const char* name) {
    const Json& value = anyArgument(request, name);
    if (!value.is_number_unsigned()) {
        throw RequestError('"' + std::string(name) + "\" must be a number of bytes");
    }
    return value.get<std::uint64_t>();
}

services::AnswerChange changeArgument(const Json& request) {
    services::AnswerChange change;
    if (argument(request, "status") != nullptr) {
        change.status = statusArgument(request);
    }
    if (argument(request, "body") != nullptr) {
        change.body = stringArgument(request, "body");
    }
    if (argument(request, "drop") != nullptr) {
        change.dropped = flagArgument(request, "drop");
    }
    if (argument(request, "delay") != nullptr) {
        change.delay = secondsArgument(request, "delay");
    }
    if (argument(request, "headers") != nullptr) {
        change.headers = headersArgument(request);
    }
    if (argument(request, "length") != nullptr) {
        change.length = bytesArgument(request, "length");
    }
    if (argument(request, "cut") != nullptr) {
        change.cut = bytesArgument(request, "cut");
    }
    if (argument(request, "rate") != nullptr) {
        change.rate = static_cast<double>(bytesArgument(request, "rate"));
    }
    return change;
}

void refuseChanges(const Json& request) {
    constexpr std::array changes{"status",  "body",   "drop", "delay",
                                 "headers", "length", "cut",  "rate"};
    if (std::ranges::any_of(changes, [&](const char* name) { return request.contains(name); })) {
        throw RequestError("\"reset\" leaves nothing to be changed");
    }
}

} // namespace

Json serve(Session&, const Json& request) {
    const std::string& name = stringArgument(request, "service");
    if (flagArgument(request, "reset")) {
        refuseChanges(request);
    }
    if (!services::changeAnswers(name, changeArgument(request))) {
        throw RequestError("there is no service " + name);
    }
    return services::serviceNames();
}

} // namespace desktop::host
