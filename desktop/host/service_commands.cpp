// The command that tells the host's services what to answer.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "desktop/services/loopback_names.hpp"

#include <algorithm>
#include <array>

namespace desktop::host {
namespace {

int statusArgument(const Json& request, const char* name) {
    constexpr std::uint64_t least = 100;
    constexpr std::uint64_t most = 599;
    const Json& value = anyArgument(request, name);
    const auto status = value.is_number_unsigned() ? value.get<std::uint64_t>() : 0;
    if (status < least || status > most) {
        throw RequestError("\"status\" must be a whole number from 100 to 599");
    }
    return static_cast<int>(status);
}

services::Headers headersArgument(const Json& request, const char* name) {
    services::Headers headers;
    const Json& values = anyArgument(request, name);
    if (!values.is_object()) {
        throw RequestError("\"headers\" must be an object");
    }
    for (const auto& [field, value] : values.items()) {
        if (!value.is_string()) {
            throw RequestError("\"headers\" must have strings as values");
        }
        headers.emplace_back(field, value.get<std::string>());
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

using Change = services::AnswerChange;

/// What may be different in an answer, by its name in a request.
struct Part {
    const char* name;
    void (*take)(Change& change, const Json& request, const char* name);
};

constexpr std::array answerParts{
    Part{"status",
         [](Change& c, const Json& r, const char* n) { c.status = statusArgument(r, n); }},
    Part{"body", [](Change& c, const Json& r, const char* n) { c.body = stringArgument(r, n); }},
    Part{"drop", [](Change& c, const Json& r, const char* n) { c.dropped = flagArgument(r, n); }},
    Part{"delay", [](Change& c, const Json& r, const char* n) { c.delay = secondsArgument(r, n); }},
    Part{"headers",
         [](Change& c, const Json& r, const char* n) { c.headers = headersArgument(r, n); }},
    Part{"length", [](Change& c, const Json& r, const char* n) { c.length = bytesArgument(r, n); }},
    Part{"cut", [](Change& c, const Json& r, const char* n) { c.cut = bytesArgument(r, n); }},
    Part{"rate", [](Change& c, const Json& r,
                    const char* n) { c.rate = static_cast<double>(bytesArgument(r, n)); }},
};

Change changeArgument(const Json& request) {
    Change change;
    for (const Part& part : answerParts) {
        if (argument(request, part.name) != nullptr) {
            part.take(change, request, part.name);
        }
    }
    return change;
}

void refuseChanges(const Json& request) {
    if (std::ranges::any_of(answerParts,
                            [&](const Part& part) { return request.contains(part.name); })) {
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
