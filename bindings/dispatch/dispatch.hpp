// Grand Central Dispatch: queues, asynchronous and delayed work.
#pragma once

#include "bindings/objc/block.hpp"

#include <cstdint>
#include <memory>
#include <utility>

struct dispatch_queue_s;
using dispatch_queue_t = dispatch_queue_s*;
using dispatch_function_t = void (*)(void* context);

extern "C" {
extern dispatch_queue_s _dispatch_main_q;
dispatch_queue_t dispatch_get_global_queue(long priority, unsigned long flags);
void dispatch_async(dispatch_queue_t queue, id block);
void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work);
void dispatch_after(std::uint64_t when, dispatch_queue_t queue, id block);
void dispatch_after_f(std::uint64_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work);
/// A moment `delta` nanoseconds after `base`, where 0 stands for now.
std::uint64_t dispatch_time(std::uint64_t base, std::int64_t delta);
}

namespace dispatch {

/// The queue whose work runs on the main thread.
inline dispatch_queue_t mainQueue() { return &_dispatch_main_q; }
/// The global queue of default priority: any background thread.
inline dispatch_queue_t globalQueue() { return dispatch_get_global_queue(0, 0); }

namespace detail {

/// The body on its way to a queue, which calls and destroys it exactly once.
template <class Body>
std::pair<void*, dispatch_function_t> parcel(Body body) {
    return {new Body(std::move(body)), [](void* context) {
                const std::unique_ptr<Body> owned(static_cast<Body*>(context));
                objc::contained("dispatched work", [&] { (*owned)(); });
            }};
}

} // namespace detail

// NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the queue owns the parcel.

/// Runs `body` on `queue` as soon as it is its turn. What it throws is reported and ends there.
template <class Body>
void async(dispatch_queue_t queue, Body body) {
    const auto [context, work] = detail::parcel(std::move(body));
    dispatch_async_f(queue, context, work);
}

/// Runs `body` on `queue` after that many seconds.
template <class Body>
void after(double seconds, dispatch_queue_t queue, Body body) {
    constexpr double nanosecondsPerSecond = 1e9;
    const auto delta = static_cast<std::int64_t>(seconds * nanosecondsPerSecond);
    const auto [context, work] = detail::parcel(std::move(body));
    dispatch_after_f(dispatch_time(0, delta), queue, context, work);
}

// NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)

} // namespace dispatch
