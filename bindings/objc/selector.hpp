// Selectors by their literal name, registered once.
#pragma once

#include "bindings/objc/literal.hpp"
#include "bindings/objc/runtime.hpp"

#include <atomic>

namespace objc {

/// The selector of that name. Any thread; the first call registers it, later calls cost a load.
template <Literal Name>
SEL selector() {
    // Zero-initialised, so that it may be used before any constructor of the image has run. Two
    // threads that race store the same value.
    static constinit std::atomic<SEL> registered{nullptr};
    SEL found = registered.load(std::memory_order_relaxed);
    if (found == nullptr) [[unlikely]] {
        found = sel_registerName(Name.data());
        registered.store(found, std::memory_order_relaxed);
    }
    return found;
}

} // namespace objc
