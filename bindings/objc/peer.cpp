// Making classes, and the life of their instances beyond the peer.
#include "bindings/objc/peer.hpp"

namespace objc::detail {
namespace {

/// The peer is no object that key-value coding could read or replace.
bool accessInstanceVariablesDirectly(id, SEL) { return false; }

} // namespace

MadeClass makeClass(const ClassDeclaration& declaration, std::span<const MethodRow> rows) {
    const char* name = declaration.name;
    const Class cls = objc_lookUpClass(name) != nullptr
                          ? nullptr
                          : objc_allocateClassPair(declaration.superclass, name, 0);
    if (cls == nullptr) {
        return {};
    }
    // Named after the class: a superclass's peer has a variable of its own.
    class_addIvar(cls, name, declaration.peerSize,
                  static_cast<unsigned char>(std::countr_zero(declaration.peerAlignment)), "?");
    if (declaration.initialise != nullptr) {
        class_addMethod(object_getClass(object(cls)), selector<"initialize">(),
                        declaration.initialise, "v@:");
    } else {
        addMethods(cls, declaration, rows);
    }
    objc_registerClassPair(cls);
    return {cls, ivar_getOffset(class_getInstanceVariable(cls, name))};
}

void addMethods(Class cls, const ClassDeclaration& declaration, std::span<const MethodRow> rows) {
    const Class meta = object_getClass(object(cls));
    class_addMethod(meta, selector<"allocWithZone:">(), declaration.allocate, "@@:^v");
    class_addMethod(meta, selector<"accessInstanceVariablesDirectly">(),
                    reinterpret_cast<IMP>(&accessInstanceVariablesDirectly), "B@:");
    class_addMethod(cls, selector<"dealloc">(), declaration.deallocate, "v@:");
    for (const MethodRow& row : rows) {
        addMethod(row, cls);
    }
}

void initialiseBySuperclass(Class registered, id cls, SEL name) {
    const Class meta = object_getClass(object(class_getSuperclass(registered)));
    invoke<void>(class_getMethodImplementation(meta, name), cls, name);
}

id allocateBySuperclass(Class registered, Class cls, SEL name, void* zone) {
    const Class meta = object_getClass(object(class_getSuperclass(registered)));
    return invoke<id>(class_getMethodImplementation(meta, name), object(cls), name, zone);
}

void deallocateBySuperclass(Class registered, id instance, SEL name) {
    const Class superclass = class_getSuperclass(registered);
    object_setClass(instance, superclass);
    invoke<void>(class_getMethodImplementation(superclass, name), instance, name);
}

} // namespace objc::detail
