// Scheduling, firing and ending timers.
#include "desktop/foundation/timer.hpp"

#include "bindings/objc/hook.hpp"
#include "bindings/objc/hook_primitive.hpp"
#include "bindings/objc/pool.hpp"

#include <utility>

namespace desktop::foundation {
namespace {

/// The platform's own shortest interval.
constexpr double shortest = 0.0001;

using TargetScheduler = objc::Next<ns::Timer(double, objc::Object, SEL, objc::Object, bool)>;
ns::Timer scheduleTarget(TargetScheduler, objc::Object, double interval, objc::Object target,
                         SEL selector, objc::Object userInfo, bool repeats) {
    const auto timer = ClockTimerKind::make();
    ClockTimer::of(timer).setUserInfo(userInfo);
    ClockTimer::of(timer).start(interval, repeats,
                                [target = objc::Strong(target), selector](ns::Timer due) {
                                    objc::sendTo(target.raw(), selector, due);
                                });
    return timer;
}

using TimerBlock = objc::Block<void(ns::Timer)>;
ns::Timer scheduleBlock(Class, SEL, double interval, objc::Boolean repeats, TimerBlock block) {
    const auto timer = ClockTimerKind::make();
    // The block may still be on its maker's stack.
    ClockTimer::of(timer).start(interval, repeats,
                                [block = objc::Strong<TimerBlock>(objc::Copied<TimerBlock>(block))](
                                    ns::Timer due) { block(due); });
    return timer;
}

} // namespace

void ClockTimer::start(double interval, bool repeats, std::function<void(ns::Timer)> action) {
    interval_ = interval > shortest ? interval : shortest;
    repeats_ = repeats;
    action_ = std::move(action);
    schedule(Clock::shared().now() + interval_);
}

void ClockTimer::schedule(double moment) {
    ticket_ = Clock::shared().at(moment, [kept = objc::Strong(self()), moment] {
        const objc::Pool pool;
        of(kept).fallDue(moment);
    });
}

void ClockTimer::fallDue(double moment) {
    if (repeats_) {
        const double next = moment + interval_;
        const double now = Clock::shared().now();
        schedule(next > now ? next : now + interval_); // what was missed is not made up for
    }
    fire();
}

void ClockTimer::fire() {
    const auto action = action_; // firing may invalidate
    if (!action) {
        return;
    }
    action(self());
    if (!repeats_) {
        invalidate();
    }
}

void ClockTimer::invalidate() {
    Clock::shared().cancel(ticket_);
    const auto action = std::exchange(action_, nullptr); // its target's death may come back here
    userInfo_ = nullptr;
}

void installTimers() {
    ClockTimer::registerClass();
    objc::install(
        objc::classHook<"NSTimer",
                        "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                        &scheduleTarget>());
    // Foundation was compiled without blocks and writes their type differently: a hook that
    // compares the types would refuse.
    MSHookMessageEx(object_getClass(objc::object(ns::Timer::classObject())),
                    objc::selector<"scheduledTimerWithTimeInterval:repeats:block:">(),
                    reinterpret_cast<IMP>(&scheduleBlock), nullptr);
}

} // namespace desktop::foundation
