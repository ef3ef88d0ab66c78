// Owning pointers to the objects of the C libraries that drawing uses.
#pragma once

#include <memory>

namespace desktop {

/// Calls a C function to release what a unique pointer holds.
template <auto release>
struct Release {
    template <typename Object>
    void operator()(Object* object) const {
        release(object);
    }
};

template <typename Object, auto release>
using Handle = std::unique_ptr<Object, Release<release>>;

} // namespace desktop
