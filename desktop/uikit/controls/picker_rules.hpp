// The wheel of a picker: rows around a cylinder that is seen from the side.
#pragma once

namespace desktop {

/// How a row is seen.
struct WheelPlace {
    double offset; ///< of its middle from the wheel's middle, in points
    double scale;  ///< of its height
    double alpha;
};

/// A row whose middle is `distance` points along the wheel from the middle row's; rows behind the
/// wheel have alpha 0. `radius` must be positive.
[[nodiscard]] WheelPlace wheelPlace(double distance, double radius);

/// The row nearest to the middle when the wheel has turned by `offset` points; 0 without rows.
[[nodiscard]] long wheelRow(double offset, double rowHeight, long rows);

/// How far along the wheel what is seen at `offset` from the middle lies: the inverse of
/// `wheelPlace`.
[[nodiscard]] double wheelDistance(double offset, double radius);

} // namespace desktop
