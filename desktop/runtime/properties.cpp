// Properties of classes that are made at run time, which GNU libobjc lacks.
#include "desktop/runtime/properties.hpp"

#include "bindings/objc/class_list.hpp"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string_view>

namespace desktop {
namespace {

std::mutex propertiesMutex;
/// The runtime hands out pointers to them.
std::map<Class, std::deque<DeclaredProperty>>& declared() {
    static auto* table = new std::map<Class, std::deque<DeclaredProperty>>;
    return *table;
}

} // namespace

std::deque<DeclaredProperty> declaredProperties(Class cls) {
    const std::scoped_lock lock(propertiesMutex);
    const auto found = declared().find(cls);
    return found == declared().end() ? std::deque<DeclaredProperty>() : found->second;
}

} // namespace desktop

objc::Boolean class_addProperty(Class cls, const char* name,
                                const objc_property_attribute_t* attributes, unsigned int count) {
    std::string text;
    for (unsigned int i = 0; i < count; ++i) {
        text.append(text.empty() ? "" : ",").append(attributes[i].name).append(attributes[i].value);
    }
    const std::scoped_lock lock(desktop::propertiesMutex);
    auto& properties = desktop::declared()[cls];
    const std::string_view newName = name; // measured once
    if (std::ranges::find(properties, newName, &desktop::DeclaredProperty::name) !=
        properties.end()) {
        return 0;
    }
    properties.push_back({name, text});
    return 1;
}

objc_property_t* class_copyPropertyList(Class cls, unsigned int* count) {
    const std::scoped_lock lock(desktop::propertiesMutex);
    const auto found = desktop::declared().find(cls);
    const std::size_t size = found == desktop::declared().end() ? 0 : found->second.size();
    if (count != nullptr) {
        *count = static_cast<unsigned int>(size);
    }
    if (size == 0) {
        return nullptr;
    }
    auto* const properties =
        static_cast<objc_property_t*>(std::calloc(size + 1, sizeof(objc_property_t)));
    for (std::size_t index = 0; properties != nullptr && index < size; ++index) {
        properties[index] = reinterpret_cast<objc_property_t>(&found->second[index]);
    }
    return properties;
}

const char* property_getName(objc_property_t property) {
    return reinterpret_cast<const desktop::DeclaredProperty*>(property)->name.c_str();
}
