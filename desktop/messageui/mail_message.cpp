// Every text and content goes in as Base64, which needs no quoting.
#include "desktop/messageui/mail_message.hpp"

#include "desktop/foundation/text.hpp"

#include <openssl/evp.h>

#include <algorithm>
#include <array>

namespace desktop::mail {
namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string base64(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0'); // with a zero at its end
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    text.pop_back();
    return text;
}

/// In lines, of which each stands for itself.
std::string encoded(std::string_view bytes) {
    constexpr std::size_t bytesInLine = 57; // 76 characters
    std::string lines;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(bytesInLine, bytes.size()))) {
        lines.append(base64(bytes.substr(0, bytesInLine))).append(lineEnd);
    }
    return lines;
}

/// A header's text in encoded words, none of which cuts a character in two.
std::string words(std::string_view text) {
    constexpr std::size_t bytesInWord = 45; // 75 characters with what is around
    std::string words;
    while (!text.empty()) {
        std::size_t length = std::min(bytesInWord, text.size());
        while (length < text.size() && length > 1 && continuesCharacter(text[length])) {
            --length;
        }
        words.append(words.empty() ? "" : "\r\n ");
        words.append("=?UTF-8?B?").append(base64(text.substr(0, length))).append("?=");
        text.remove_prefix(length);
    }
    return words;
}

bool isPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view(".-_+").find(c) != std::string_view::npos;
}

/// An address as it stands, or what somebody wrote in the place of one as a name without address.
std::string recipient(const std::string& text) {
    const bool isAddress = text.find('@') != std::string::npos &&
                           std::ranges::all_of(text, [](char c) { return isPlain(c) || c == '@'; });
    return isAddress ? text : words(text) + " <>";
}

std::string percentEncoded(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (isPlain(c) && c != '+') {
            encoded += c;
        } else {
            encoded.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
        }
    }
    return encoded;
}

std::string typeOf(const std::string& type) {
    const auto slash = std::ranges::count(type, '/');
    const bool isType =
        slash == 1 && std::ranges::all_of(type, [](char c) { return isPlain(c) || c == '/'; });
    return isType ? type : "application/octet-stream";
}

struct Part {
    std::string headers;
    std::string_view content;
};

std::string part(const Part& part) {
    return part.headers + "Content-Transfer-Encoding: base64\r\n\r\n" + encoded(part.content);
}

std::string bodyPart(const Message& message) {
    const char* const type = message.isHtml ? "text/html" : "text/plain";
    return part({std::string("Content-Type: ") + type + "; charset=utf-8\r\n", message.body});
}

std::string attachmentPart(const Attachment& attachment) {
    return part({"Content-Type: " + typeOf(attachment.type) +
                     "\r\nContent-Disposition: attachment;\r\n filename*=utf-8''" +
                     percentEncoded(attachment.name) + "\r\n",
                 attachment.content});
}

std::string headers(const Message& message, std::string_view date) {
    std::string to;
    for (const std::string& one : message.to) {
        to.append(to.empty() ? "" : ",\r\n ").append(recipient(one));
    }
    std::string text = "Date: " + std::string(date) + "\r\n";
    text.append(to.empty() ? "" : "To: " + to + "\r\n");
    text.append("Subject: ").append(words(message.subject)).append(lineEnd);
    return text.append("MIME-Version: 1.0\r\n");
}

} // namespace

std::string fileOf(const Message& message, std::string_view date) {
    // Nothing in Base64 begins with a hyphen.
    constexpr std::string_view boundary = "----wentra-part";
    std::string text = headers(message, date);
    text.append("Content-Type: multipart/mixed; boundary=\"").append(boundary).append("\"\r\n\r\n");
    const auto begin = [&] { text.append("--").append(boundary).append(lineEnd); };
    begin();
    text.append(bodyPart(message));
    for (const Attachment& attachment : message.attachments) {
        begin();
        text.append(attachmentPart(attachment));
    }
    return text.append("--").append(boundary).append("--\r\n");
}

} // namespace desktop::mail
