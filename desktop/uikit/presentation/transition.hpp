// The movement with which a presented or pushed view comes and goes.
#pragma once

#include "desktop/quartzcore/animation/animation.hpp"

#include <functional>

namespace desktop {

/// Makes the changes to views, at once or (animated) visibly within that many seconds of the clock,
/// and then calls `done`. Touches reach the views where they will be.
inline void transition(bool animated, double seconds, const std::function<void()>& changes,
                       const std::function<void()>& done) {
    AnimationTiming timing;
    timing.duration = animated ? seconds : 0;
    timing.allowsTouches = true;
    if (animated) {
        Animation::perform(timing, changes, [done](bool) { done(); });
    } else {
        changes();
        done();
    }
}

} // namespace desktop
