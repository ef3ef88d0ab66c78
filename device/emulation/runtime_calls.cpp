// The runtime's functions that take or give functions of methods, or that GNU libobjc has
// otherwise.
#include "device/emulation/calls.hpp"
#include "device/emulation/conventions.hpp"
#include "device/emulation/imports.hpp"

#include "bindings/objc/block.hpp"
#include "bindings/objc/hook_primitive.hpp"

namespace emulation {
namespace {

// The phone's callers rely on the callee to widen a BOOL, so these give an int.

int addVariable(Class cls, const char* name, std::size_t size, unsigned char alignment,
                const char* type) {
    return class_addIvar(cls, name, size, alignment, type);
}
int addProperty(Class cls, const char* name, const objc_property_attribute_t* attributes,
                unsigned count) {
    return class_addProperty(cls, name, attributes, count);
}
int isEqual(SEL one, SEL other) { return sel_isEqual(one, other); }

// Functions of methods change sides.

int addMethod(Class cls, SEL name, IMP function, const char* types) {
    return class_addMethod(cls, name, forLinux(function, types), types);
}
IMP functionOf(Method method) {
    return forLibrary(method_getImplementation(method), method_getTypeEncoding(method));
}
IMP functionNamed(Class cls, SEL name) {
    const Method method = class_getInstanceMethod(cls, name);
    return method != nullptr ? functionOf(method) : class_getMethodImplementation(cls, name);
}
void hook(Class cls, SEL name, IMP replacement, IMP* former) {
    const Method method = class_getInstanceMethod(cls, name);
    if (method == nullptr) {
        return;
    }
    // The slot is filled first: another thread may call the replacement as soon as it is there.
    if (former != nullptr) {
        *former = functionOf(method);
    }
    MSHookMessageEx(cls, name, forLinux(replacement, method_getTypeEncoding(method)), nullptr);
}

/// A block is called by its own pointer to a function, which is the library's until it is copied.
void* copyBlock(const void* block) {
    auto* copy = static_cast<objc::detail::BlockHeader*>(_Block_copy(block));
    constexpr int signed_ = objc::detail::blockHasSignature | objc::detail::blockHasCopyDispose;
    if (copy != nullptr && copy != block && (copy->flags & signed_) == signed_) {
        copy->invoke = forLinux(copy->invoke, copy->descriptor->signature);
    }
    return copy;
}

/// GNU libobjc has it in its header only.
Class classOf(id object) { return object_getClass(object); }

} // namespace

std::vector<Translation> runtimeTranslations() {
    return {
        translation("_MSHookMessageEx", &hook),
        translation("__Block_copy", &copyBlock),
        translation("_class_addIvar", &addVariable),
        translation("_class_addMethod", &addMethod),
        translation("_class_addProperty", &addProperty),
        translation("_class_getMethodImplementation", &functionNamed),
        translation("_method_getImplementation", &functionOf),
        translation("_objc_msgSend", &emulation_msgSend),
        translation("_object_getClass", &classOf),
        translation("_sel_isEqual", &isEqual),
    };
}

} // namespace emulation
