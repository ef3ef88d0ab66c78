// Reading the arguments of a request.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "desktop/host/response_line.hpp"

#include <optional>
#include <string>

namespace desktop::host {

/// The value under `name`; null when it is missing.
[[nodiscard]] const Json* argument(const Json& request, const char* name);

/// These throw RequestError for a value that is missing or of another kind.
[[nodiscard]] const Json& anyArgument(const Json& request, const char* name);
[[nodiscard]] const std::string& stringArgument(const Json& request, const char* name);
[[nodiscard]] const Json& objectArgument(const Json& request, const char* name);
/// A list with something in it.
[[nodiscard]] const Json& listArgument(const Json& request, const char* name);
/// From 0 to ten million seconds; the second form has a value for a missing one.
[[nodiscard]] double secondsArgument(const Json& request, const char* name);
[[nodiscard]] double secondsArgument(const Json& request, const char* name, double missing);
/// A whole number from 1 to `most`, or the value for a missing one.
[[nodiscard]] std::size_t countArgument(const Json& request, const char* name, std::size_t missing,
                                        std::size_t most);

/// A point of the screen is [x,y]; not absurdly far away.
[[nodiscard]] CGPoint toPoint(const Json& value);
[[nodiscard]] CGPoint pointArgument(const Json& request, const char* name);

/// A missing flag is false. Throws RequestError for a value that is not a boolean.
[[nodiscard]] bool flagArgument(const Json& request, const char* name);

} // namespace desktop::host
