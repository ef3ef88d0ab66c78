// Announcing changes to those who listen.
#include "desktop/quartzcore/screen_changes.hpp"

namespace desktop {

ScreenChanges& ScreenChanges::shared() {
    static auto* changes = new ScreenChanges; // views may change until the process ends
    return *changes;
}

void ScreenChanges::announce() {
    if (announced_.exchange(true)) {
        return;
    }
    for (const Listener& listener : listeners_) {
        listener();
    }
}

} // namespace desktop
