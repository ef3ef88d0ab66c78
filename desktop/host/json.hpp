// The JSON values of the protocol, and what is said when a request cannot be served.
#pragma once

#include <nlohmann/json.hpp>

#include <stdexcept>

namespace desktop::host {

using Json = nlohmann::json;

/// Why a request is refused, as its sender is told.
struct RequestError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace desktop::host
