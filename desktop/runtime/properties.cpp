// Adding properties to classes at run time, which GNU libobjc lacks.
#include "desktop/runtime/properties.hpp"

#include "bindings/objc/runtime.hpp"

#include <map>
#include <mutex>

namespace desktop {
namespace {

std::mutex mutex;
std::map<Class, std::vector<DeclaredProperty>>& declared() {
    static auto* table = new std::map<Class, std::vector<DeclaredProperty>>;
    return *table;
}

} // namespace

std::vector<DeclaredProperty> declaredProperties(Class cls) {
    const std::scoped_lock lock(mutex);
    const auto found = declared().find(cls);
    return found == declared().end() ? std::vector<DeclaredProperty>() : found->second;
}

} // namespace desktop

objc::Boolean class_addProperty(Class cls, const char* name,
                                const objc_property_attribute_t* attributes, unsigned int count) {
    std::string text;
    for (unsigned int i = 0; i < count; ++i) {
        text += text.empty() ? "" : ",";
        text += std::string(attributes[i].name) + attributes[i].value;
    }
    const std::scoped_lock lock(desktop::mutex);
    auto& properties = desktop::declared()[cls];
    for (const desktop::DeclaredProperty& property : properties) {
        if (property.name == name) {
            return 0;
        }
    }
    properties.push_back({name, text});
    return 1;
}
