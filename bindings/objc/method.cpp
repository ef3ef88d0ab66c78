// Adding rows of a method table to a class.
#include "bindings/objc/method.hpp"

#include "bindings/objc/declared_types.hpp"

#include <cstring>
#include <string_view>

namespace objc {
namespace {

void addProperty(const MethodRow& row, Class cls) {
    const PropertyRow& property = *row.property;
    class_addMethod(cls, sel_registerName(property.setter),
                    implementationAt(property.setterImplementation),
                    keepDeclaredTypes(cls, property.setter, property.setterTypes));

    std::array<objc_property_attribute_t, 4> attributes{};
    unsigned int count = 0;
    attributes[count++] = {"T", property.type};
    if (property.ownership != nullptr) {
        attributes[count++] = {property.ownership, ""};
    }
    attributes[count++] = {"N", ""};
    if (std::string_view(row.selector) != property.name) {
        attributes[count++] = {"G", row.selector};
    }
    class_addProperty(cls, property.name, attributes.data(), count);
}

} // namespace

IMP implementationAt(FunctionPlace place) {
    IMP implementation = nullptr;
    std::memcpy(static_cast<void*>(&implementation), place, sizeof implementation);
    return implementation;
}

void addMethod(const MethodRow& row, Class cls) {
    const Class target = row.side == Side::type ? object_getClass(object(cls)) : cls;
    class_addMethod(target, sel_registerName(row.selector), implementationAt(row.implementation),
                    keepDeclaredTypes(target, row.selector, row.types));
    if (row.property != nullptr) {
        addProperty(row, cls);
    }
}

} // namespace objc
