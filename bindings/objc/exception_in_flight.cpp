// Asking the platform's C++ runtime for the exception being handled.
#include "bindings/objc/exception_in_flight.hpp"

#include <exception>

#ifdef __APPLE__

#    include <cstdlib>
#    include <cxxabi.h>
#    include <memory>
#    include <typeinfo>

extern "C" {
// Every Objective-C exception type has this table; the first two words are not part of it.
extern const void* objc_ehtype_vtable[];
}

namespace objc {

Object exceptionInFlight() {
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr || *reinterpret_cast<const void* const*>(type) != &objc_ehtype_vtable[2]) {
        return nullptr;
    }
    void* thrown = abi::__cxa_current_primary_exception();
    const id exception = thrown != nullptr ? *static_cast<id*>(thrown) : nullptr;
    // The exception that is being handled holds a count of its own.
    abi::__cxa_decrement_exception_refcount(thrown);
    return wrap(exception);
}

ExceptionText describeCxxExceptionInFlight() {
    // To catch it by type would link the type from the phone's C++ library.
    const std::type_info* type = abi::__cxa_current_exception_type();
    if (type == nullptr) {
        return {"unknown exception", ""};
    }
    const std::unique_ptr<char, decltype(&std::free)> readable(
        abi::__cxa_demangle(type->name(), nullptr, nullptr, nullptr), &std::free);
    return {readable != nullptr ? readable.get() : type->name(), ""};
}

} // namespace objc

#else

extern "C" id objc_last_exception_thrown();

namespace objc {

Object exceptionInFlight() {
    // libstdc++ has no exception_ptr for an exception of another language.
    return std::current_exception() == nullptr ? wrap(objc_last_exception_thrown()) : nullptr;
}

ExceptionText describeCxxExceptionInFlight() {
    try {
        throw;
    } catch (const std::exception& exception) {
        return {"std::exception", exception.what()};
    } catch (...) {
        return {"unknown exception", ""};
    }
}

} // namespace objc

#endif
