// Foundation keeps a percent sign without its digits; the phone answers nil.
#include "desktop/foundation/percent_encoding.hpp"

#include "bindings/objc/hook.hpp"

#include <algorithm>
#include <array>

namespace desktop::foundation {
namespace {

bool isHexadecimal(char16_t unit) {
    constexpr std::u16string_view digits = u"0123456789ABCDEFabcdef";
    return digits.find(unit) != digits.npos;
}

ns::String decoded(objc::Next<ns::String()> next, ns::String text) {
    return isPercentEncoded(text.utf16()) ? next() : nullptr;
}

template <class Predicate>
std::string percentEncoded(std::string_view text, Predicate staysAsItIs) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    encoded.reserve(text.size());
    for (const char character : text) {
        if (const auto byte = static_cast<unsigned char>(character); staysAsItIs(byte)) {
            encoded += character;
        } else {
            encoded.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
        }
    }
    return encoded;
}

} // namespace

std::string percentEncodedBeyondAscii(std::string_view text) {
    return percentEncoded(text, [](unsigned char byte) { return byte < 0x80; });
}

std::string percentEncodedPath(std::string_view path) {
    static constexpr auto isPlain = [] {
        std::array<bool, 256> stays{};
        for (const char character :
             std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                              "0123456789!$&'()*+,-./:=@_~")) {
            stays[static_cast<unsigned char>(character)] = true;
        }
        return stays;
    }();
    return percentEncoded(path, [](unsigned char byte) { return isPlain[byte]; });
}

bool isPercentEncoded(std::u16string_view text) {
    for (std::size_t at = text.find(u'%'); at != text.npos; at = text.find(u'%', at + 1)) {
        const auto digits = text.substr(at + 1, 2);
        if (digits.size() < 2 || !std::ranges::all_of(digits, isHexadecimal)) {
            return false;
        }
    }
    return true;
}

void installPercentEncoding() {
    static const bool once = [] {
        objc::install(objc::hook<"stringByRemovingPercentEncoding", &decoded>());
        return true;
    }();
    static_cast<void>(once);
}

} // namespace desktop::foundation
