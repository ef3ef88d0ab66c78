// The beat of moving pictures.
#pragma once

#include "desktop/runtime/clock.hpp"

#include <functional>
#include <vector>

namespace desktop {

/// Ticks 60 times a second of the clock while something moves, and not at all when nothing does;
/// each tick makes the screen stale.
/// Main thread.
class FrameClock {
public:
    /// Answers whether it wants another frame; `now` is the clock's time.
    using Step = std::function<bool(double now)>;

    static FrameClock& shared();

    static constexpr double interval = 1.0 / 60;

    /// Calls `step` at each frame, first one frame from now, until it answers no.
    void run(Step step);

private:
    FrameClock() = default;
    void schedule();
    void tick();

    std::vector<Step> steps_;
    bool isScheduled_ = false;
};

} // namespace desktop
