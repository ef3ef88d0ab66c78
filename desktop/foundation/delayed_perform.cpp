// Scheduling, sending and cancelling delayed messages.
#include "desktop/foundation/delayed_perform.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/objc/hook.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/runtime/clock.hpp"

#include <array>
#include <list>

namespace desktop::foundation {
namespace {

/// A message on its way; its parties live until it has been sent or cancelled.
struct Delayed {
    objc::Strong<objc::Object> target;
    SEL selector;
    objc::Strong<objc::Object> argument;
    Clock::Ticket ticket = 0;
};

std::list<Delayed>& pending() {
    static auto* messages = new std::list<Delayed>; // its objects live until the process ends
    return *messages;
}

void schedule(objc::Object target, SEL selector, objc::Object argument, double delay) {
    pending().push_back({target, selector, argument});
    const auto message = std::prev(pending().end());
    Clock& clock = Clock::shared();
    message->ticket = clock.at(clock.now() + std::max(0.0, delay), [message] {
        const objc::Pool pool;
        const Delayed due = std::move(*message);
        pending().erase(message);
        objc::sendTo(due.target.raw(), due.selector, due.argument.raw());
    });
}

template <class Matches>
void cancel(Matches matches) {
    std::list<Delayed> cancelled; // let go of at the end: an object's death may come back here
    for (auto message = pending().begin(); message != pending().end();) {
        const auto next = std::next(message);
        if (matches(*message)) {
            Clock::shared().cancel(message->ticket);
            cancelled.splice(cancelled.end(), pending(), message);
        }
        message = next;
    }
}

bool sameArgument(objc::Object one, objc::Object other) {
    return one == other || (one && one.isEqual(other));
}

using Delayer = objc::Next<void(SEL, objc::Object, double)>;
void performAfter(Delayer, objc::Object target, SEL selector, objc::Object argument, double delay) {
    schedule(target, selector, argument, delay);
}

// The desktop's run loop has one mode, in which everything runs.
using ModalDelayer = objc::Next<void(SEL, objc::Object, double, ns::Array)>;
void performAfterInModes(ModalDelayer, objc::Object target, SEL selector, objc::Object argument,
                         double delay, ns::Array) {
    schedule(target, selector, argument, delay);
}

void cancelAll(objc::Next<void(objc::Object)>, objc::Object, objc::Object target) {
    cancel([target](const Delayed& message) { return message.target == target; });
}

void cancelSome(objc::Next<void(objc::Object, SEL, objc::Object)>, objc::Object,
                objc::Object target, SEL selector, objc::Object argument) {
    cancel([=](const Delayed& message) {
        return message.target == target && sel_isEqual(message.selector, selector) != 0 &&
               sameArgument(message.argument, argument);
    });
}

} // namespace

void installDelayedPerform() {
    constexpr std::array changes{
        objc::hook<"NSObject", "performSelector:withObject:afterDelay:", &performAfter>(),
        objc::hook<"NSObject",
                   "performSelector:withObject:afterDelay:inModes:", &performAfterInModes>(),
        objc::classHook<"NSObject", "cancelPreviousPerformRequestsWithTarget:", &cancelAll>(),
        objc::classHook<"NSObject",
                        "cancelPreviousPerformRequestsWithTarget:selector:object:", &cancelSome>(),
    };
    for (const objc::Change& change : changes) {
        objc::install(change);
    }
}

} // namespace desktop::foundation
