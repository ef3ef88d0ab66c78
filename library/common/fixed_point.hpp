// Numbers with a fixed number of digits behind the point.
#pragma once

#include <string>

namespace wentra {

/// The number in ASCII, rounded to so many places behind the point: "1.50". Any number, and what is
/// none ("nan", "inf").
[[nodiscard]] std::string fixedPoint(double number, int places);

} // namespace wentra
