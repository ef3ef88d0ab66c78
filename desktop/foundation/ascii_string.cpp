// What is ASCII goes around GNUstep's converter; everything else is left to it.
#include "desktop/foundation/ascii_string.hpp"

#include "bindings/objc/hook.hpp"
#include "desktop/foundation/string_contents.hpp"

namespace desktop::foundation {
namespace {

/// So many bytes are widened before anything is decided, which compilers turn into vectors.
constexpr std::size_t widenedBytes = 64;

/// Whether they were all ASCII; what has been written does not count otherwise.
bool widenBlock(const char* __restrict bytes, char16_t* __restrict units) {
    unsigned char seen = 0;
    for (std::size_t index = 0; index < widenedBytes; ++index) {
        const auto byte = static_cast<unsigned char>(bytes[index]);
        seen |= byte;
        units[index] = byte;
    }
    return seen < 0x80;
}

bool widen(std::string_view bytes, char16_t* units) {
    for (; bytes.size() >= widenedBytes; bytes.remove_prefix(widenedBytes), units += widenedBytes) {
        if (!widenBlock(bytes.data(), units)) {
            return false;
        }
    }
    unsigned char seen = 0;
    for (const char each : bytes) {
        const auto byte = static_cast<unsigned char>(each);
        seen |= byte;
        *units++ = byte;
    }
    return seen < 0x80;
}

bool isIn(std::string_view bytes, ns::Range range) {
    return range.location <= bytes.size() && range.length <= bytes.size() - range.location;
}

using Getter = objc::Next<void(char16_t*, ns::Range)>;
void getCharacters(Getter next, ByteText self, char16_t* buffer, ns::Range range) {
    const std::string_view bytes = bytesOf(self);
    if (!isIn(bytes, range) || !widen(bytes.substr(range.location, range.length), buffer)) {
        next(buffer, range);
    }
}

} // namespace

void installAsciiStrings() { objc::install(objc::hook<"getCharacters:range:", &getCharacters>()); }

} // namespace desktop::foundation
