// The fingers of the page on the phone's screen.
#pragma once

#include "desktop/viewer/page_message.hpp"

#include <set>

namespace desktop::viewer {

/// Remembers which fingers are down, so that they can be taken away when the page leaves without
/// lifting them. Main thread.
class PageHand {
public:
    /// Fingers that do not fit, such as those that come down twice, are ignored.
    void touch(const Fingers& fingers);
    /// Cancels the fingers that are still down.
    void leave();

private:
    std::set<std::int64_t> down_;
};

} // namespace desktop::viewer
