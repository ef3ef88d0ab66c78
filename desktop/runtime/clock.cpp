// Keeping time, and the calls that wait for it.
#include "desktop/runtime/clock.hpp"

#include "desktop/runtime/main_queue.hpp"

#include <algorithm>
#include <chrono>
#include <mutex>
#include <utility>

namespace desktop {
namespace {

std::mutex clockMutex;

double realSeconds() {
    using namespace std::chrono;
    static const auto start = steady_clock::now();
    return duration<double>(steady_clock::now() - start).count();
}

} // namespace

Clock::Clock()
    : dateAtStart_(
          std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
              .count() -
          realSeconds()) {}

Clock& Clock::shared() {
    static Clock clock;
    return clock;
}

void Clock::setMode(Mode mode) {
    const std::scoped_lock lock(clockMutex);
    mode_ = mode;
}

double Clock::now() const {
    const std::scoped_lock lock(clockMutex);
    return mode_ == Mode::real ? realSeconds() : virtualNow_;
}

Clock::Ticket Clock::at(double moment, std::function<void()> work) {
    Ticket ticket = 0;
    {
        const std::scoped_lock lock(clockMutex);
        ticket = ++lastTicket_;
        scheduled_.emplace(Key{moment, ticket}, std::move(work));
    }
    MainQueue::shared().wake(); // it may be waiting for a later deadline
    return ticket;
}

void Clock::cancel(Ticket ticket) {
    const std::scoped_lock lock(clockMutex);
    std::erase_if(scheduled_, [ticket](const auto& call) { return call.first.ticket == ticket; });
}

std::optional<double> Clock::nextDeadline() const {
    const std::scoped_lock lock(clockMutex);
    return scheduled_.empty() ? std::nullopt : std::optional(scheduled_.begin()->first.moment);
}

bool Clock::runNextDue() {
    const double moment = now();
    std::function<void()> work;
    {
        const std::scoped_lock lock(clockMutex);
        if (scheduled_.empty() || scheduled_.begin()->first.moment > moment) {
            return false;
        }
        work = std::move(scheduled_.extract(scheduled_.begin()).mapped());
    }
    work();
    return true;
}

void Clock::moveTo(double moment) {
    const std::scoped_lock lock(clockMutex);
    virtualNow_ = std::max(virtualNow_, moment);
}

} // namespace desktop
