// Adding rows of a method table to a class in construction.
#include "bindings/objc/method.hpp"

#include <vector>

namespace objc {

void addMethod(const MethodRow& row, Class cls) {
    const Class target = row.side == Side::type ? object_getClass(object(cls)) : cls;
    class_addMethod(target, sel_registerName(row.selector), row.implementation, row.types);
    if (row.setter != nullptr) {
        class_addMethod(target, sel_registerName(row.setter), row.setterImplementation,
                        row.setterTypes);
    }
    if (row.property != nullptr) {
        std::vector<objc_property_attribute_t> attributes{{"T", row.propertyType}};
        if (row.propertyOwnership != nullptr) {
            attributes.push_back({row.propertyOwnership, ""});
        }
        attributes.push_back({"N", ""});
        if (std::string_view(row.selector) != row.property) {
            attributes.push_back({"G", row.selector});
        }
        class_addProperty(cls, row.property, attributes.data(),
                          static_cast<unsigned int>(attributes.size()));
    }
}

} // namespace objc
