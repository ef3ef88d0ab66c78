// A request as it comes, one line of JSON.
#pragma once

#include "desktop/host/json.hpp"

#include <string>

namespace desktop::host {

/// Why a line is no request, with the request's "id" as far as one can be made out, else null.
struct MalformedLine : RequestError {
    MalformedLine(const std::string& why, Json identifier)
        : RequestError(why), id(std::move(identifier)) {}
    Json id;
};

/// The JSON object in the line. Where an escape (`\ud83d`) is half a surrogate pair, the string has
/// it as `bytesOfHalf`. Throws MalformedLine, which says where the line goes wrong, for anything
/// else, and for values that are nested more deeply than 200 levels.
[[nodiscard]] Json readRequest(const std::string& line);

} // namespace desktop::host
