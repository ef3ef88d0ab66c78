// Looks at most texts, which are ASCII, by blocks.
#include "library/common/plain_text.hpp"

#include <algorithm>
#include <cstdint>

namespace wentra {
namespace {

/// So many units are looked at before anything is decided, which compilers turn into vectors.
constexpr std::size_t blockSize = 64;

constexpr bool isPlain(char16_t unit) {
    const auto within = [unit](char16_t first, char16_t last) {
        return static_cast<std::uint16_t>(unit - first) <= static_cast<std::uint16_t>(last - first);
    };
    // Without the combining marks, the letters of other alphabets and the fullwidth ones.
    return unit < 0x80 || within(0x4E00, 0x9FFF) || within(0x2010, 0x2027) ||
           within(0x3000, 0x3029) || within(0xFF01, 0xFF20);
}

bool isAscii(std::u16string_view block) {
    std::uint16_t seen = 0;
    for (const char16_t unit : block) {
        seen = static_cast<std::uint16_t>(seen | unit);
    }
    return seen < 0x80;
}

} // namespace

bool isPlainText(std::u16string_view text) {
    while (!text.empty()) {
        const std::u16string_view block = text.substr(0, blockSize);
        if (!isAscii(block) && !std::ranges::all_of(block, &isPlain)) {
            return false;
        }
        text.remove_prefix(block.size());
    }
    return true;
}

} // namespace wentra
