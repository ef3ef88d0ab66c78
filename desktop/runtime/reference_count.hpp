// The count of an object's references, where Foundation keeps it.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <atomic>
#include <cstdint>

namespace desktop {

/// Foundation keeps the number of references beyond the first in the word before an object whose
/// references the root class counts. Below zero, the object is dying: it can be retained and
/// released as before, which changes nothing any more. Any thread.
class ReferenceCount {
public:
    explicit ReferenceCount(id object)
        : further_(*(reinterpret_cast<std::intptr_t*>(object) - 1)) {}

    [[nodiscard]] bool isAlive() const { return further_.load() >= 0; }
    /// Adds a reference, unless the object is dying.
    [[nodiscard]] bool add() const {
        std::intptr_t known = further_.load();
        while (known >= 0) {
            if (further_.compare_exchange_weak(known, known + 1)) {
                return true;
            }
        }
        return false;
    }
    /// Takes a reference away; true when it was the last one, and the object is dying from now on.
    [[nodiscard]] bool takeLast() const {
        if (further_.fetch_sub(1) != 0) {
            return false;
        }
        further_.store(dying);
        return true;
    }

    /// Far from what an object may be retained and released in between.
    static constexpr std::intptr_t dying = -(std::intptr_t{1} << 40U);

private:
    std::atomic_ref<std::intptr_t> further_;
};

} // namespace desktop
