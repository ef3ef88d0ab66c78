// Asking the platform's C++ runtime for the Objective-C object being handled.
#include "bindings/objc/exception_in_flight.hpp"

#include <exception>

#ifdef __APPLE__

#    include <cxxabi.h>
#    include <typeinfo>

extern "C" {
// Every Objective-C exception type has this table; the first two words are not part of it.
extern const void* objc_ehtype_vtable[];
void* __cxa_current_primary_exception() noexcept;
void __cxa_decrement_exception_refcount(void* thrown) noexcept;
}

namespace objc {

Object exceptionInFlight() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr || *reinterpret_cast<const void* const*>(type) != &objc_ehtype_vtable[2]) {
        return nullptr;
    }
    void* thrown = __cxa_current_primary_exception();
    const id exception = thrown != nullptr ? *static_cast<id*>(thrown) : nullptr;
    __cxa_decrement_exception_refcount(thrown);
    return wrap(exception);
}

} // namespace objc

#else

extern "C" id objc_last_exception_thrown();

namespace objc {

Object exceptionInFlight() {
    // libstdc++ has no exception_ptr for an exception of another language.
    return std::current_exception() == nullptr ? wrap(objc_last_exception_thrown()) : nullptr;
}

} // namespace objc

#endif
