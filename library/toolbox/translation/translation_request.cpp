// Puts requests to the translation service together.
#include "library/toolbox/translation/translation_request.hpp"

#include "library/common/percent_encoding.hpp"
#include "library/common/text_encoding.hpp"

#include <algorithm>

namespace wentra::toolbox {
namespace {

constexpr std::string_view serviceAddress = "https://fanyi-api.baidu.com/api/trans/vip/translate";
constexpr std::string_view pageAddress = "https://translate.google.com/";

} // namespace

bool containsChinese(std::u16string_view text) {
    return std::ranges::any_of(text,
                               [](char16_t unit) { return unit >= 0x4E01 && unit <= 0x9FFE; });
}

std::string_view targetLanguage(std::u16string_view text) {
    return containsChinese(text) ? "auto" : "zh";
}

std::string encodedForService(std::u16string_view text) { return percentEncoded(text, "-._~/?"); }

std::u16string signedText(const TranslationAccount& account, std::u16string_view line,
                          unsigned salt) {
    std::u16string text = account.identifier;
    text.append(line);
    text.append(utf16FromUtf8(std::to_string(salt)));
    text.append(account.secret);
    return text;
}

std::string translationAddress(const TranslationAccount& account, std::u16string_view line,
                               std::string_view target, unsigned salt, std::string_view sign) {
    std::string address(serviceAddress);
    address.append("?q=").append(encodedForService(line));
    address.append("&from=auto&to=").append(target);
    // An identifier is digits; one that was mistyped must not break the address.
    address.append("&appid=").append(encodedForService(account.identifier));
    address.append("&salt=").append(std::to_string(salt));
    address.append("&sign=").append(sign);
    return address;
}

std::string translationPageAddress(std::u16string_view text) {
    std::string address(pageAddress);
    address.append("?sl=auto&tl=").append(targetLanguage(text));
    address.append("&text=").append(percentEncoded(text, percent::queryAllowed));
    return address;
}

} // namespace wentra::toolbox
