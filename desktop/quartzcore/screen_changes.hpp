// The news that what is to be seen on the screen may have changed.
#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <utility>

namespace desktop {

/// Everything that is drawn announces its changes here, whoever made them; pictures of the screen
/// listen. Announcing costs next to nothing while nobody waits for news. Main thread.
class ScreenChanges {
public:
    using Listener = std::function<void()>;
    using Ticket = std::list<Listener>::iterator;

    static ScreenChanges& shared();

    /// Something that is drawn is different now. Listeners are called at the first announcement
    /// after `await`; they must not draw at once, since the change may be half done.
    void announce();
    /// From now on, the next announcement is news again.
    void await() { announced_ = false; }

    Ticket listen(Listener listener) {
        return listeners_.insert(listeners_.end(), std::move(listener));
    }
    void leave(Ticket ticket) { listeners_.erase(ticket); }

private:
    std::list<Listener> listeners_;
    std::atomic<bool> announced_ = false; ///< views that no window has yet may change on any thread
};

} // namespace desktop
