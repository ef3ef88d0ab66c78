// What a file that was loaded is to be called.
#pragma once

#include <string>
#include <string_view>

namespace desktop::foundation {

/// The name that the header Content-Disposition gives, or else the last part of the URL's path, or
/// else its host, or else "unknown". Always the name of a file, never a path: of a path the last
/// part is taken; at most 255 bytes. A name without an extension gets that of the MIME type, where
/// it is a common one. All in UTF-8; empty where there is none.
[[nodiscard]] std::string suggestedFilename(std::string_view contentDisposition,
                                            std::string_view url, std::string_view mimeType);

/// Lets responses answer so. Once.
void installSuggestedFilename();

} // namespace desktop::foundation
