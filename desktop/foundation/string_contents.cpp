// Reads the variables of GNUstep's classes.
#include "desktop/foundation/string_contents.hpp"

#include <cstddef>
#include <cstring>

namespace desktop::foundation {
namespace {

/// A variable of the object, as it lies there.
template <class Value>
Value variable(ns::String text, std::ptrdiff_t offset) {
    Value value;
    std::memcpy(&value, reinterpret_cast<const std::byte*>(text.raw()) + offset, sizeof value);
    return value;
}

/// Both classes inherit their variables from one.
std::ptrdiff_t offsetOf(const char* name) {
    return ivar_getOffset(class_getInstanceVariable(UnicodeText::classObject(), name));
}

template <class Unit>
std::basic_string_view<Unit> contentsOf(ns::String text) {
    static const std::ptrdiff_t contents = offsetOf("_contents");
    static const std::ptrdiff_t count = offsetOf("_count");
    return {variable<const Unit*>(text, contents), variable<unsigned int>(text, count)};
}

} // namespace

std::u16string_view unitsOf(UnicodeText text) { return contentsOf<char16_t>(text); }
std::string_view bytesOf(ByteText text) { return contentsOf<char>(text); }

} // namespace desktop::foundation
