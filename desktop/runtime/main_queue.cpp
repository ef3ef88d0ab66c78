// The main thread's queue, with an event descriptor for sleepers.
#include "desktop/runtime/main_queue.hpp"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace desktop {

MainQueue& MainQueue::shared() {
    static auto* queue = new MainQueue; // background threads may use it until the process ends
    return *queue;
}

MainQueue::MainQueue() : descriptor_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void MainQueue::add(std::function<void()> work) {
    {
        const std::scoped_lock lock(mutex_);
        work_.push_back(std::move(work));
    }
    wake();
}

void MainQueue::wake() { eventfd_write(descriptor_, 1); }

bool MainQueue::runNext() {
    std::function<void()> work;
    {
        const std::scoped_lock lock(mutex_);
        if (work_.empty()) {
            return false;
        }
        work = std::move(work_.front());
        work_.pop_front();
    }
    work();
    return true;
}

void MainQueue::quiet() {
    eventfd_t count = 0;
    eventfd_read(descriptor_, &count);
}

} // namespace desktop
