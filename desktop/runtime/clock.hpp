// The one clock of the desktop: timers, delays, animations and gestures all run on it.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace desktop {

/// Seconds since the process started, real or virtual. Main thread only, unless said otherwise.
class Clock {
public:
    enum class Mode {
        real,    ///< follows the machine's clock
        virtual_ ///< stands still until `moveTo`
    };
    /// A scheduled call, to be cancelled by.
    using Ticket = std::uint64_t;

    static Clock& shared();

    void setMode(Mode mode);
    [[nodiscard]] Mode mode() const { return mode_; }
    /// Any thread.
    [[nodiscard]] double now() const;
    /// What the calendar shows now, in seconds since 1970: the machine's date when the process
    /// started, unless it was set, and what has passed on this clock since. Any thread.
    [[nodiscard]] double date() const { return now() + dateAtStart_; }
    /// Sets the calendar; before other threads are started.
    void setDate(double secondsSince1970) { dateAtStart_ = secondsSince1970 - now(); }

    /// Calls `work` on the main thread once the clock shows `moment` or more. Calls that are due at
    /// the same moment run in the order in which they were scheduled. Any thread.
    Ticket at(double moment, std::function<void()> work);
    /// Forgets a call that has not begun; unknown tickets are ignored. Any thread.
    void cancel(Ticket ticket);

    /// When the next call falls due.
    [[nodiscard]] std::optional<double> nextDeadline() const;
    /// Runs the first call that is due now; false when none is.
    bool runNextDue();
    /// Moves the virtual clock forward to `moment`, running nothing.
    void moveTo(double moment);

private:
    struct Key {
        double moment;
        Ticket ticket;
        friend auto operator<=>(const Key&, const Key&) = default;
    };
    Clock();

    Mode mode_ = Mode::real;
    double dateAtStart_;
    double virtualNow_ = 0;
    Ticket lastTicket_ = 0;
    std::map<Key, std::function<void()>> scheduled_;
};

} // namespace desktop
