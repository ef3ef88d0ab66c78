// Formatted by the C library, which rounds as people expect.
#include "library/common/fixed_point.hpp"

#include <array>
#include <cstdio>

namespace wentra {

std::string fixedPoint(double number, int places) {
    std::array<char, 512> text{}; // the largest number has 309 digits before the point
    std::snprintf(text.data(), text.size(), "%.*f", places, number);
    return text.data();
}

} // namespace wentra
