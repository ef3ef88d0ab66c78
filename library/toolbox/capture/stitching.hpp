// Where the pictures of a long screen lie in the tall one that they are joined to.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <cstddef>

namespace wentra::toolbox {

/// Pictures of a screen that is scrolled on between them, one below the other. All but the first
/// lose the bars at their top, which every screen repeats. In points.
class Stitching {
public:
    explicit Stitching(CGSize screen) : screen_(screen) {}

    /// Of the whole, for that many pictures; at least one.
    [[nodiscard]] CGSize size(std::size_t count) const;
    /// Where the picture of that number, from 0, is drawn.
    [[nodiscard]] CGRect place(std::size_t index) const;

private:
    CGSize screen_;
};

/// The pixels of a picture that are left below the bars at its top. `picture` is in points.
[[nodiscard]] CGRect pixelsBelowBars(CGSize picture, double pixelsPerPoint);

} // namespace wentra::toolbox
