// Exceptions of Objective-C: on the phone they are C++'s, of a type with a table of its own; under
// Linux they are another language's, and C++ knows nothing of them but that they are there.
#include "device/emulation/imports.hpp"
#include "device/emulation/refusal.hpp"

#include "bindings/objc/runtime.hpp"

#include <array>
#include <cxxabi.h>
#include <exception>
#include <typeinfo>

extern "C" id objc_last_exception_thrown();

namespace emulation {
namespace {

struct Type {
    const void* const* table;
    const char* name;
};

// The first two words are not part of it.
std::array<const void*, 4> tableOfObjectTypes;
const Type objectType{&tableOfObjectTypes[2], "NSException"};

/// Whether the exception that is being handled is C++'s: of others, libstdc++'s type is whatever
/// lies in front of them.
bool isCxx() { return std::current_exception() != nullptr; }

const void* currentType() {
    return isCxx() ? static_cast<const void*>(abi::__cxa_current_exception_type()) : &objectType;
}

/// Where the exception lies: for Objective-C's, a variable that holds the object.
void* currentException() {
    if (isCxx()) {
        refuse("the place of a C++ exception");
    }
    thread_local id thrown = nullptr;
    thrown = objc_last_exception_thrown();
    return static_cast<void*>(&thrown);
}

/// The object is not counted by that place.
void release(void*) {}

} // namespace

std::vector<Translation> exceptionTranslations() {
    return {
        translation("___cxa_current_exception_type", &currentType),
        translation("___cxa_current_primary_exception", &currentException),
        translation("___cxa_decrement_exception_refcount", &release),
        translation("_objc_ehtype_vtable", tableOfObjectTypes.data()),
    };
}

} // namespace emulation
