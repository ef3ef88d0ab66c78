// Reading the arguments of a request.
#pragma once

#include "desktop/host/json.hpp"

#include <optional>
#include <string>

namespace desktop::host {

/// The value under `name`; null when it is missing.
[[nodiscard]] const Json* argument(const Json& request, const char* name);

/// These throw RequestError for a value that is missing or of another kind.
[[nodiscard]] const Json& anyArgument(const Json& request, const char* name);
[[nodiscard]] const std::string& stringArgument(const Json& request, const char* name);
[[nodiscard]] const Json& objectArgument(const Json& request, const char* name);
/// From 0 to ten million seconds.
[[nodiscard]] double secondsArgument(const Json& request, const char* name);

/// A missing flag is false. Throws RequestError for a value that is not a boolean.
[[nodiscard]] bool flagArgument(const Json& request, const char* name);

} // namespace desktop::host
