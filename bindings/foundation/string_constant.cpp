// Making string literals' objects where the platform has no constant ones.
#include "bindings/foundation/string_constant.hpp"

#ifndef __APPLE__

#    include "bindings/foundation/string.hpp"

namespace ns::detail {

id StringConstant::object() {
    id object = made_.load(std::memory_order_acquire);
    if (object != nullptr) {
        return object;
    }
    const id made = String::sendClass<"alloc", String>().send<"initWithCharacters:length:", id>(
        characters_, static_cast<unsigned long>(length_));
    if (made_.compare_exchange_strong(object, made)) {
        return made;
    }
    objc_release(made); // another thread was first
    return object;
}

} // namespace ns::detail

#endif
