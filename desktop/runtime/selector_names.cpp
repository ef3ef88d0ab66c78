// Names of selectors, in the place of GNU libobjc's function, which takes the runtime's lock for
// each: a name never changes, so it is asked for once.
#include "desktop/runtime/runtime_structures.hpp"

#include <array>
#include <atomic>
#include <dlfcn.h>

namespace desktop {
namespace {

/// More than any application has; memory that is not touched costs nothing.
constexpr std::size_t capacity = 1U << 16U;
std::array<std::atomic<const char*>, capacity> names;

const char* nameOf(SEL selector) {
    static const auto next =
        reinterpret_cast<const char* (*)(SEL)>(dlsym(RTLD_NEXT, "sel_getName"));
    return next(selector);
}

} // namespace
} // namespace desktop

const char* sel_getName(SEL selector) {
    if (selector == nullptr || desktop::placeOf(selector) >= desktop::capacity) {
        return desktop::nameOf(selector);
    }
    std::atomic<const char*>& known = desktop::names[desktop::placeOf(selector)];
    const char* name = known.load(std::memory_order_acquire);
    if (name == nullptr) {
        name = desktop::nameOf(selector);
        known.store(name, std::memory_order_release);
    }
    return name;
}
