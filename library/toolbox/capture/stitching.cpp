// The arithmetic of joined pictures.
#include "library/toolbox/capture/stitching.hpp"

namespace wentra::toolbox {
namespace {

/// The status bar and the navigation bar.
constexpr double barsHeight = 92;

} // namespace

CGSize Stitching::size(std::size_t count) const {
    const CGRect last = place(count - 1);
    return {screen_.width, last.origin.y + last.size.height};
}

CGRect Stitching::place(std::size_t index) const {
    if (index == 0) {
        return {{}, screen_};
    }
    const double added = screen_.height - barsHeight;
    return {{0, screen_.height + added * static_cast<double>(index - 1)}, {screen_.width, added}};
}

CGRect pixelsBelowBars(CGSize picture, double pixelsPerPoint) {
    return {{0, barsHeight * pixelsPerPoint},
            {picture.width * pixelsPerPoint, (picture.height - barsHeight) * pixelsPerPoint}};
}

} // namespace wentra::toolbox
