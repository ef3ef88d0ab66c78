// Grand Central Dispatch on the desktop: the main queue, global queues on threads, delays on the
// clock.
#include "bindings/dispatch/dispatch.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/runtime/clock.hpp"
#include "desktop/runtime/main_queue.hpp"

#include <algorithm>
#include <cmath>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

struct dispatch_queue_s {
    void (*add)(std::function<void()>);
};

namespace desktop {
namespace {

using Work = std::function<void()>;

/// Threads that share one queue of background work. They live as long as the process.
class Workers {
public:
    static Workers& shared() {
        static auto* workers = new Workers;
        return *workers;
    }

    void add(Work work) {
        const std::scoped_lock lock(mutex_);
        work_.push_back(std::move(work));
        if (idle_ == 0 && threads_ < maximum) {
            ++threads_;
            std::thread([this] { run(); }).detach();
        }
        changed_.notify_one();
    }

private:
    static constexpr int maximum = 8;

    void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            ++idle_;
            changed_.wait(lock, [this] { return !work_.empty(); });
            --idle_;
            const Work work = std::move(work_.front());
            work_.pop_front();
            lock.unlock();
            work();
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Work> work_;
    int threads_ = 0;
    int idle_ = 0;
};

/// Every piece of work has an autorelease pool of its own.
Work pooled(void* context, dispatch_function_t function) {
    return [context, function] {
        const objc::Pool pool;
        function(context);
    };
}

Work pooled(id block) {
    const auto callable = objc::wrap<objc::Block<void()>>(block);
    return [owned = objc::Strong(callable)] {
        const objc::Pool pool;
        owned();
    };
}

constexpr double nanosecondsPerSecond = 1e9;

void addAfter(std::uint64_t when, dispatch_queue_t queue, Work work) {
    Clock::shared().at(static_cast<double>(when) / nanosecondsPerSecond,
                       [queue, work = std::move(work)]() mutable { queue->add(std::move(work)); });
}

dispatch_queue_s globalQueue{[](Work work) { Workers::shared().add(std::move(work)); }};

} // namespace
} // namespace desktop

dispatch_queue_s _dispatch_main_q{
    [](std::function<void()> work) { desktop::MainQueue::shared().add(std::move(work)); }};

dispatch_queue_t dispatch_get_global_queue(long, unsigned long) { return &desktop::globalQueue; }

void dispatch_async(dispatch_queue_t queue, id block) { queue->add(desktop::pooled(block)); }

void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
    queue->add(desktop::pooled(context, work));
}

void dispatch_after(std::uint64_t when, dispatch_queue_t queue, id block) {
    desktop::addAfter(when, queue, desktop::pooled(block));
}

void dispatch_after_f(std::uint64_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work) {
    desktop::addAfter(when, queue, desktop::pooled(context, work));
}

std::uint64_t dispatch_time(std::uint64_t base, std::int64_t delta) {
    const double now = desktop::Clock::shared().now() * desktop::nanosecondsPerSecond;
    const double start = base == 0 ? std::round(now) : static_cast<double>(base);
    return static_cast<std::uint64_t>(std::max(0.0, start + static_cast<double>(delta)));
}
