// The service that files are downloaded from: as slow, broken and badly named as it is asked to be.
#pragma once

#include "desktop/services/answer.hpp"

#include <string_view>

namespace desktop::services::files {

/// The host name under which the service is reached.
inline constexpr std::string_view hostName = "files.example";

/// The answer to a GET of `target`. "/" is a page with links to files; every other path is a file,
/// and its query says how it comes: `size` in bytes (1000 when missing, 64 MB at most) or its
/// `text`; `rate`, bytes a second; `cut`, after how many bytes the connection breaks off; `length`,
/// what the server says the file's is; `name`, what it says the file is called, as it stands;
/// `disposition`, the whole header instead; `type`, its MIME type; `status`; `to`, where it has
/// moved.
Answer answerTo(std::string_view target);

} // namespace desktop::services::files
