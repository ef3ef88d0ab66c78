// Finding classes.
#include "bindings/objc/kind.hpp"

namespace objc {

Class ClassReference::get() {
    Class found = known_.load(std::memory_order_relaxed);
    if (found == nullptr) [[unlikely]] {
        found = objc_lookUpClass(name_);
        known_.store(found, std::memory_order_relaxed);
    }
    return found;
}

} // namespace objc
