// Reading numbers and texts of the file's tables.
#include "device/emulation/byte_reader.hpp"

#include "device/emulation/refusal.hpp"

#include <algorithm>

namespace emulation {
namespace {

constexpr unsigned groupBits = 7;
constexpr unsigned valueBits = 64;
constexpr std::uint8_t moreFollows = 0x80;
constexpr std::uint8_t negative = 0x40;

struct Number {
    std::uint64_t value = 0;
    unsigned bits = 0;
    std::uint8_t last = 0;
};

Number groups(ByteReader& reader) {
    Number number;
    do {
        if (number.bits >= valueBits) {
            throw Refusal("a number in the file's tables has more than 64 bits");
        }
        number.last = reader.byte();
        number.value |= std::uint64_t{number.last & 0x7FU} << number.bits;
        number.bits += groupBits;
    } while ((number.last & moreFollows) != 0);
    return number;
}

} // namespace

Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size) {
    if (offset > bytes.size() || size > bytes.size() - offset) {
        throw Refusal("the file ends before one of its tables does");
    }
    return bytes.subspan(offset, size);
}

std::uint8_t ByteReader::byte() {
    const auto value = valueAt<std::uint8_t>(rest_, 0);
    rest_ = rest_.subspan(1);
    return value;
}

std::uint64_t ByteReader::number() { return groups(*this).value; }

std::int64_t ByteReader::signedNumber() {
    Number number = groups(*this);
    if ((number.last & negative) != 0 && number.bits < valueBits) {
        number.value |= ~std::uint64_t{0} << number.bits;
    }
    return static_cast<std::int64_t>(number.value);
}

std::string_view ByteReader::text() {
    const auto end = std::ranges::find(rest_, std::byte{0});
    const auto length = static_cast<std::size_t>(end - rest_.begin());
    const Bytes characters = part(rest_, 0, length + 1);
    rest_ = rest_.subspan(length + 1);
    return {reinterpret_cast<const char*>(characters.data()), length};
}

} // namespace emulation
