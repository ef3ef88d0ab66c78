// Eight UTF-16 units, compared at once.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace wentra {

/// Every processor that we know has registers of this size.
using UnitVector [[gnu::vector_size(16)]] = std::uint16_t;

inline constexpr std::size_t unitVectorSize = sizeof(UnitVector) / sizeof(std::uint16_t);

/// The units there, eight of them.
inline UnitVector unitsAt(const char16_t* place) {
    UnitVector units;
    std::memcpy(&units, place, sizeof units);
    return units;
}

/// That unit eight times.
inline UnitVector unitVector(char16_t unit) { return UnitVector{} + std::uint16_t{unit}; }

/// The bits of a vector in two words.
using UnitWords [[gnu::vector_size(sizeof(UnitVector))]] = std::uint64_t;

/// Whether a comparison holds for any unit.
template <class Comparison>
bool holdsAny(Comparison found) {
    const auto words = std::bit_cast<UnitWords>(found);
    return (words[0] | words[1]) != 0;
}

/// Which of the units is the first that is zero; `unitVectorSize` when none is.
inline std::size_t firstZero(UnitVector units) {
    static_assert(std::endian::native == std::endian::little);
    constexpr std::size_t half = unitVectorSize / 2;
    const auto zero = std::bit_cast<UnitWords>(units == 0); // all bits of a unit, or none
    constexpr int unitBits = 16;
    return zero[0] != 0   ? static_cast<std::size_t>(std::countr_zero(zero[0]) / unitBits)
           : zero[1] != 0 ? half + static_cast<std::size_t>(std::countr_zero(zero[1]) / unitBits)
                          : unitVectorSize;
}

} // namespace wentra
