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
    return change;
}

void refuseChanges(const Json& request) {
    constexpr std::array changes{"status", "body", "drop", "delay"};
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
