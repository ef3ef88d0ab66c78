// Ticking while something moves.
#include "desktop/quartzcore/animation/frame_clock.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/quartzcore/screen_changes.hpp"

#include <utility>

namespace desktop {

FrameClock& FrameClock::shared() {
    static auto* clock = new FrameClock; // steps may hold objects until the process ends
    return *clock;
}

void FrameClock::run(Step step) {
    steps_.push_back(std::move(step));
    schedule();
}

void FrameClock::schedule() {
    if (!steps_.empty() && !std::exchange(isScheduled_, true)) {
        Clock::shared().at(Clock::shared().now() + interval, [this] {
            const objc::Pool pool;
            isScheduled_ = false;
            tick();
        });
    }
}

void FrameClock::tick() {
    const double now = Clock::shared().now();
    auto steps = std::exchange(steps_, {}); // a step may start another movement
    for (Step& step : steps) {
        if (step(now)) {
            steps_.push_back(std::move(step));
        }
    }
    schedule();
    ScreenChanges::shared().announce();
}

} // namespace desktop
