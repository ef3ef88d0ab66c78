// Comparing the methods of classes with those of the start.
#include "desktop/host/hooked_methods.hpp"

#include "bindings/objc/class_list.hpp"
#include "bindings/uikit/view.hpp"

#include <map>

namespace desktop::host {
namespace {

/// By their names: one selector may have several addresses.
using Methods = std::map<std::string, IMP>;

std::map<Class, Methods>& formerMethods() {
    static std::map<Class, Methods> methods;
    return methods;
}

bool isView(Class cls) {
    while (cls != nullptr && cls != ui::View::classObject()) {
        cls = class_getSuperclass(cls);
    }
    return cls != nullptr;
}

Methods methodsOf(Class cls) {
    Methods methods;
    objc::forEachMethod(cls, [&](SEL name) {
        methods[sel_getName(name)] = method_getImplementation(class_getInstanceMethod(cls, name));
    });
    return methods;
}

/// What the class, or else the nearest above it, did at that message; null for nothing.
IMP formerMethod(Class cls, const std::string& name) {
    for (; cls != nullptr; cls = class_getSuperclass(cls)) {
        const auto methods = formerMethods().find(cls);
        if (methods == formerMethods().end()) {
            continue;
        }
        if (const auto found = methods->second.find(name); found != methods->second.end()) {
            return found->second;
        }
    }
    return nullptr;
}

} // namespace

void rememberMethods() {
    for (const Class known : objc::allClasses()) {
        // Up to the first that is remembered already, as are those above it.
        for (Class cls = isView(known) ? known : nullptr;
             cls != nullptr && !formerMethods().contains(cls); cls = class_getSuperclass(cls)) {
            formerMethods()[cls] = methodsOf(cls);
        }
    }
}

std::vector<std::string> hookedMethods(Class cls) {
    std::vector<std::string> hooked;
    for (; cls != nullptr; cls = class_getSuperclass(cls)) {
        if (!formerMethods().contains(cls)) {
            continue;
        }
        for (const auto& [name, method] : methodsOf(cls)) {
            const IMP former = formerMethod(cls, name);
            if (former != nullptr && former != method) {
                hooked.push_back(std::string(class_getName(cls)) + " " + name);
            }
        }
    }
    return hooked;
}

} // namespace desktop::host
