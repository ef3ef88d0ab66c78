// Selectors by their literal name, registered once.
#pragma once

#include "bindings/objc/literal.hpp"
#include "bindings/objc/runtime.hpp"

#include <atomic>

namespace objc {

#ifdef __APPLE__

namespace detail {

/// The runtime reads these sections when it loads the image, and replaces each name in the first by
/// the selector of that name. They are what a compiler writes for Objective-C sources.
template <Literal Name>
struct SelectorReference {
    [[gnu::section("__DATA,__objc_selrefs")]] static inline const char* name = Name.data();
};
struct ImageInfo {
    unsigned int version;
    unsigned int flags;
};
[[gnu::used,
  gnu::section(
      "__DATA,__objc_imageinfo,regular,no_dead_strip")]] static constexpr ImageInfo imageInfo{0,
                                                                                              64};

} // namespace detail

/// The selector of that name. Any thread, once the image is loaded; costs a load.
template <Literal Name>
SEL selector() {
    return reinterpret_cast<SEL>(detail::SelectorReference<Name>::name);
}

#else

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

#endif

} // namespace objc
