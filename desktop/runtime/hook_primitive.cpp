// MSHookMessageEx: the code-injection framework's hook, on GNU libobjc.
#include "bindings/objc/hook_primitive.hpp"

#include "desktop/runtime/dispatch_tables.hpp"

void MSHookMessageEx(Class cls, SEL name, IMP replacement, IMP* former) {
    const Method method = cls != nullptr ? class_getInstanceMethod(cls, name) : nullptr;
    if (method == nullptr) {
        return;
    }
    // The slot is filled first: another thread may call the replacement as soon as it is there.
    if (former != nullptr) {
        *former = method_getImplementation(method);
    }
    // GNU's class_replaceMethod would reach into the superclass that an inherited method belongs
    // to.
    if (class_addMethod(cls, name, replacement, method_getTypeEncoding(method)) == 0) {
        desktop::setImplementation(cls, method, replacement);
    }
}
