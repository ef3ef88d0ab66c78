// Reading the tables of a file from front to back, never past their end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

namespace emulation {

using Bytes = std::span<const std::byte>;

/// That part of the bytes; throws Refusal when they end before it does.
Bytes part(Bytes bytes, std::uint64_t offset, std::uint64_t size);

/// The value that lies at the offset; throws Refusal when the bytes end before it does.
template <class T>
T valueAt(Bytes bytes, std::uint64_t offset) {
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, part(bytes, offset, sizeof value).data(), sizeof value);
    return value;
}

/// The byte code of fixups. Each function throws Refusal at an end that comes too early.
class ByteReader {
public:
    explicit ByteReader(Bytes bytes) : rest_(bytes) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }
    std::uint8_t byte();
    /// Seven bits a byte, the lowest first.
    std::uint64_t number();
    std::int64_t signedNumber();
    /// Up to a zero byte, which is passed.
    std::string_view text();

private:
    Bytes rest_;
};

} // namespace emulation
