// What is asked of the translation service: languages, lines, signature and address.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace wentra::toolbox {

/// Whether any UTF-16 unit lies in U+4E01…U+9FFE. The first ideograph, 一, does not count.
bool containsChinese(std::u16string_view text);

/// The language a text is translated to, as the service names it: "auto" for Chinese text (the
/// service then chooses English), "zh" for any other.
std::string_view targetLanguage(std::u16string_view text);

/// The account at the translation service.
struct TranslationAccount {
    std::u16string identifier;
    std::u16string secret;
};

/// Percent-encoding of a line for the service.
std::string encodedForService(std::u16string_view text);

/// What the signature is the SHA-256 of: identifier, unencoded line, salt in decimal, secret.
std::u16string signedText(const TranslationAccount& account, std::u16string_view line,
                          unsigned salt);

/// The address of the request for one line.
std::string translationAddress(const TranslationAccount& account, std::u16string_view line,
                               std::string_view target, unsigned salt, std::string_view sign);

/// The address of the web page that translates the text.
std::string translationPageAddress(std::u16string_view text);

} // namespace wentra::toolbox
