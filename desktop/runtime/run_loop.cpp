// Running the main thread's work.
#include "desktop/runtime/run_loop.hpp"

#include "bindings/foundation/date.hpp"
#include "bindings/foundation/run_loop.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/runtime/stop_request.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <poll.h>

namespace desktop::run_loop {
namespace {

/// Lets Foundation deliver what it keeps in its own run loop: work performed on the main thread,
/// operations of the main queue, notifications that wait for idleness.
void runFoundation() {
    const objc::Pool pool;
    const auto loop = ns::RunLoop::mainRunLoop();
    loop.acceptInput(ns::RunLoop::defaultMode(), ns::Date::distantPast());
}

} // namespace

void runUntilIdle() {
    bool ran = true;
    while (ran && !stop_request::isMade()) {
        const objc::Pool pool;
        runFoundation();
        MainQueue::shared().quiet();
        ran = false;
        while (!stop_request::isMade() &&
               (MainQueue::shared().runNext() || Clock::shared().runNextDue())) {
            ran = true;
        }
    }
}

void advance(double seconds) {
    Clock& clock = Clock::shared();
    const double end = clock.now() + std::max(0.0, seconds);
    runUntilIdle();
    if (clock.mode() == Clock::Mode::real) {
        while (clock.now() < end && !stop_request::isMade()) {
            sleep(-1, end - clock.now());
            runUntilIdle();
        }
        return;
    }
    for (auto due = clock.nextDeadline(); due && *due <= end && !stop_request::isMade();
         due = clock.nextDeadline()) {
        clock.moveTo(*due);
        runUntilIdle();
    }
    clock.moveTo(end);
    runUntilIdle();
}

void sleep(int descriptor, double seconds) {
    const Clock& clock = Clock::shared();
    if (const auto due = clock.nextDeadline(); due && clock.mode() == Clock::Mode::real) {
        seconds = std::min(seconds, *due - clock.now());
    }
    // A day at most, so that any number fits; at least one millisecond for any wait at all.
    constexpr double longest = 86'400;
    constexpr double millisecondsPerSecond = 1'000;
    const double bounded = std::clamp(seconds, 0.0, longest);
    std::array<pollfd, 3> watched{{{MainQueue::shared().descriptor(), POLLIN, 0},
                                   {stop_request::descriptor(), POLLIN, 0},
                                   {descriptor, POLLIN, 0}}};
    poll(watched.data(), watched.size(),
         static_cast<int>(std::ceil(bounded * millisecondsPerSecond)));
}

} // namespace desktop::run_loop
