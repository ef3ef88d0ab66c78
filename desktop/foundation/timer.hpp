// Timers on the desktop's clock.
#pragma once

#include "bindings/foundation/run_loop.hpp"
#include "bindings/foundation/timer.hpp"
#include "desktop/class.hpp"
#include "desktop/runtime/clock.hpp"

#include <functional>

namespace desktop::foundation {

struct ClockTimerKind : objc::Kind<ClockTimerKind, "ClockTimer", ns::Timer> {
    using Kind::Kind;
};

/// A scheduled timer. Main thread.
class ClockTimer : public PlatformClass<ClockTimer, ClockTimerKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"init", &ClockTimer::init>(),
            objc::method<"fire", &ClockTimer::fire>(),
            objc::method<"invalidate", &ClockTimer::invalidate>(),
            objc::method<"isValid", &ClockTimer::isValid>(),
            objc::method<"timeInterval", &ClockTimer::timeInterval>(),
            objc::method<"userInfo", &ClockTimer::userInfo_>(),
        };
    }

    /// Calls `action` with the timer after each `interval` seconds, or once.
    void start(double interval, bool repeats, std::function<void(ns::Timer)> action);
    void setUserInfo(objc::Object userInfo) { userInfo_ = userInfo; }

private:
    ns::Timer init() { return self(); } // the superclass takes no timer without a date
    void fire();
    void invalidate();
    [[nodiscard]] bool isValid() const { return static_cast<bool>(action_); }
    [[nodiscard]] double timeInterval() const { return repeats_ ? interval_ : 0; }
    void schedule(double moment);
    void fallDue(double moment);

    double interval_ = 0;
    bool repeats_ = false;
    std::function<void(ns::Timer)> action_;
    objc::Strong<objc::Object> userInfo_;
    Clock::Ticket ticket_ = 0;
};

/// Lets NSTimer's scheduling methods make such timers.
void installTimers();

} // namespace desktop::foundation
