// Between UTF-16 units and bytes, one part without lone surrogates after the other.
#include "desktop/host/half_pairs.hpp"

#include "desktop/foundation/text.hpp"

namespace desktop::host {
namespace {

/// What the three bytes of every surrogate begin with.
constexpr char lead = '\xED';
constexpr unsigned sixBits = 0x3F;

bool isHalfAt(std::string_view bytes, std::size_t at) {
    constexpr unsigned char firstOfSurrogates = 0xA0;
    return bytes.size() - at >= bytesOfAHalf &&
           static_cast<unsigned char>(bytes[at + 1]) >= firstOfSurrogates &&
           continuesCharacter(bytes[at + 1]) && continuesCharacter(bytes[at + 2]);
}

} // namespace

std::string bytesOfHalf(char16_t surrogate) {
    const auto continuing = [](unsigned bits) { return static_cast<char>(0x80U | bits); };
    return {lead, continuing(surrogate >> 6U & sixBits), continuing(surrogate & sixBits)};
}

char16_t halfAt(std::string_view bytes, std::size_t at) {
    constexpr unsigned surrogates = 0xD000; // what `lead` says
    const auto bits = [&](std::size_t index) {
        return static_cast<unsigned char>(bytes[index]) & sixBits;
    };
    return static_cast<char16_t>(surrogates | bits(at + 1) << 6U | bits(at + 2));
}

std::size_t findHalf(std::string_view bytes, std::size_t from) {
    std::size_t at = bytes.find(lead, from);
    while (at != std::string_view::npos && !isHalfAt(bytes, at)) {
        at = bytes.find(lead, at + 1);
    }
    return at;
}

std::string withHalfPairs(std::u16string_view text) {
    std::string bytes;
    for (std::size_t end = wellFormedLength(text); end < text.size();
         end = wellFormedLength(text)) {
        bytes += toUtf8(text.substr(0, end)) + bytesOfHalf(text[end]);
        text.remove_prefix(end + 1);
    }
    return bytes + toUtf8(text);
}

ns::String toText(std::string_view bytes) {
    std::u16string units;
    for (std::size_t half = findHalf(bytes); half != std::string_view::npos;
         half = findHalf(bytes)) {
        const auto before = ns::String::fromUtf8(bytes.substr(0, half));
        if (!before) {
            return {};
        }
        units += before.utf16() + halfAt(bytes, half);
        bytes.remove_prefix(half + bytesOfAHalf);
    }
    const auto rest = ns::String::fromUtf8(bytes);
    return units.empty() || !rest ? rest : ns::String::from(units + rest.utf16());
}

} // namespace desktop::host
