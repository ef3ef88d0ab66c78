// Looking up declared classes, and comparing objects with them.
#include "desktop/host/argument_classes.hpp"

#include "bindings/foundation/array.hpp"
#include "bindings/objc/declared_types.hpp"
#include "desktop/runtime/declared_types.hpp"

#include <cctype>
#include <string_view>

namespace desktop::host {
namespace {

/// The applications' classes are declared in the table of this image.
std::vector<DeclaredClass> declaredBy(objc::Object receiver, const std::string& selector) {
    const Class cls = object_getClass(receiver.raw());
    const SEL name = sel_registerName(selector.c_str());
    const char* own = objc::declaredTypes(cls, name);
    const char* types = own != nullptr ? own : declaredTypes(cls, name);
    return types == nullptr ? std::vector<DeclaredClass>() : declaredClasses(types);
}

std::string setterOf(std::string key) {
    if (!key.empty()) {
        key.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(key.front())));
    }
    return "set" + key + ":";
}

bool isOf(objc::Object object, std::string_view name) {
    const Class cls = name.empty() ? nullptr : objc_lookUpClass(std::string(name).c_str());
    return cls == nullptr || !object || object.isKindOfClass(cls);
}

} // namespace

std::vector<DeclaredClass> argumentClasses(objc::Object receiver, const std::string& selector,
                                           const Json& arguments) {
    // A path of several keys names no setter here.
    if ((selector == "setValue:forKey:" || selector == "setValue:forKeyPath:") &&
        arguments.size() == 2 && arguments[1].is_string()) {
        return declaredBy(receiver, setterOf(arguments[1].get<std::string>()));
    }
    return declaredBy(receiver, selector);
}

bool isOf(objc::Object object, const DeclaredClass& declared) {
    if (!isOf(object, declared.name)) {
        return false;
    }
    if (declared.elements.empty()) {
        return true;
    }
    for (const objc::Object element : object.as<ns::Array>()) {
        if (!isOf(element, declared.elements)) {
            return false;
        }
    }
    return true;
}

} // namespace desktop::host
