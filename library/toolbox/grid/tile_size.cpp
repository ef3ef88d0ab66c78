// The margins around a token.
#include "library/toolbox/grid/tile_size.hpp"

#include <algorithm>
#include <cmath>

namespace wentra::toolbox {
namespace {

double length(double measured) { return std::isfinite(measured) ? std::max(measured, 0.0) : 0; }

} // namespace

double widestText(double gridWidth) {
    constexpr double margin = 15;
    return length(gridWidth - margin);
}

CGSize tileSize(CGSize text, double gridWidth) {
    constexpr double beside = 18;
    constexpr double above = 3;
    constexpr double lowestText = 18;
    return {std::min(length(text.width), widestText(gridWidth)) + beside,
            std::max(length(text.height), lowestText) + above};
}

} // namespace wentra::toolbox
