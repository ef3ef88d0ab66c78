// A mail as the file that mail programs read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace desktop::mail {

/// Texts are UTF-8, contents any bytes.
struct Attachment {
    std::string name;
    std::string type;         ///< MIME; what is none counts as application/octet-stream
    std::string_view content; ///< borrowed
};
struct Message {
    std::vector<std::string> to;
    std::string subject;
    std::string body;
    bool isHtml = false;
    std::vector<Attachment> attachments;
};

/// An Internet message in MIME format (RFC 5322, 2045 to 2047 and 2231), lines ended by CRLF. The
/// date is a header's, as it stands. Whatever the texts hold, they cannot add headers or parts.
[[nodiscard]] std::string fileOf(const Message& message, std::string_view date);

} // namespace desktop::mail
