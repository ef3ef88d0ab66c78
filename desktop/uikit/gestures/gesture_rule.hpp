// What every gesture's rule has in common: fingers and times in, steps of the gesture out.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <optional>
#include <span>

namespace desktop {

/// A finger on the screen, in points of its window.
struct Finger {
    CGPoint start; ///< where it came down
    CGPoint point; ///< where it is
};
using Fingers = std::span<const Finger>;

/// What the latest event means for the gesture.
enum class GestureStep {
    none,
    begin,  ///< a continuous gesture begins
    change, ///< it goes on
    end,    ///< it ends, or a gesture without duration has been made
    fail,   ///< this is, or has become, something else
};

/// Decides when fingers make a gesture. Plain C++: sends no messages and reads no clock. `now` is
/// in seconds and never decreases; fingers are in the order in which they came down.
class GestureRule {
public:
    GestureRule() = default;
    GestureRule(const GestureRule&) = delete;
    GestureRule& operator=(const GestureRule&) = delete;
    virtual ~GestureRule() = default;

    /// Fingers have come down; `fingers` are all that are down now.
    virtual GestureStep down(Fingers fingers, double now) = 0;
    virtual GestureStep moved(Fingers fingers, double now) = 0;
    /// Fingers have been lifted; `fingers` are those left.
    virtual GestureStep lifted(Fingers fingers, double now) = 0;
    /// The deadline has passed without another event.
    virtual GestureStep timeUp() { return GestureStep::fail; }
    [[nodiscard]] virtual std::optional<double> deadline() const { return std::nullopt; }
    /// Forgets everything about the fingers.
    virtual void reset() = 0;
};

/// A finger that has gone this far, in points, is dragging.
inline constexpr double dragDistance = 10;

/// The middle of the fingers; the origin when there are none.
[[nodiscard]] CGPoint centroid(Fingers fingers);
[[nodiscard]] double distance(CGPoint one, CGPoint other);
/// Whether some finger is farther than that from where it came down.
[[nodiscard]] bool strayed(Fingers fingers, double allowed);

} // namespace desktop
