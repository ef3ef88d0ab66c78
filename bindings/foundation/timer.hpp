// NSTimer.
#pragma once

#include "bindings/objc/block.hpp"

namespace ns {

struct Timer : objc::Kind<Timer, "NSTimer"> {
    using Kind::Kind;

    /// Sends `target` the message `selector` with the timer, first after that many seconds. The run
    /// loop owns the timer, and the timer its target, until it is over or invalidated.
    static Timer scheduled(double seconds, objc::Object target, SEL selector, objc::Object userInfo,
                           bool repeats) {
        return sendClass<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", Timer>(
            seconds, target, selector, userInfo, repeats);
    }
    static Timer scheduled(double seconds, bool repeats, objc::Block<void(Timer)> block) {
        return sendClass<"scheduledTimerWithTimeInterval:repeats:block:", Timer>(seconds, repeats,
                                                                                 block);
    }

    [[nodiscard]] bool isValid() const { return send<"isValid", bool>(); }
    [[nodiscard]] objc::Object userInfo() const { return send<"userInfo", objc::Object>(); }
    void fire() const { send<"fire">(); }
    void invalidate() const { send<"invalidate">(); }
};

} // namespace ns
