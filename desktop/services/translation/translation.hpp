// The translation service: what it answers.
#pragma once

#include "desktop/services/answer.hpp"

#include <string_view>

namespace desktop::services::translation {

/// The host name under which the service is reached.
inline constexpr std::string_view hostName = "fanyi-api.baidu.com";

/// The one account that the service knows.
inline constexpr std::string_view accountId = "desktop";
inline constexpr std::string_view accountKey = "desktop-key";

/// The signature of a request: SHA-256 over the account's id, the text, the salt and the account's
/// key, as 64 lower-case hexadecimal digits.
std::string signatureOf(std::string_view id, std::string_view text, std::string_view salt,
                        std::string_view key);

/// The answer to a GET of `target`, path and query, as the service's documentation has it: the
/// text's lines translated, or an error object. A text that begins with "!error", "!json", "!500",
/// "!drop" or "!late" gets an error object, a body that is cut short, status 500, a closed
/// connection, or its answer two seconds late.
Answer answerTo(std::string_view target);

} // namespace desktop::services::translation
