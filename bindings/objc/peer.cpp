// Making classes, and the life of their instances beyond the peer.
#include "bindings/objc/peer.hpp"

#include <vector>

namespace objc {
namespace detail {
namespace {

/// The peer is no object that key-value coding could read or replace.
bool accessInstanceVariablesDirectly(id, SEL) { return false; }

/// Those whose methods come with the first message.
std::vector<Class>& lateClasses() {
    static auto* const classes = new std::vector<Class>;
    return *classes;
}

void addMethods(Class cls, std::span<const MethodRow> rows) {
    for (const MethodRow& row : rows) {
        addMethod(row, cls);
    }
}

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
    // Others may replace these by their names before the first message: they are there from the
    // start, since an instance without its peer would be none.
    const Class meta = object_getClass(object(cls));
    class_addMethod(meta, selector<"allocWithZone:">(), declaration.allocate, "@@:^v");
    class_addMethod(cls, selector<"dealloc">(), declaration.deallocate, "v@:");
    class_addMethod(meta, selector<"accessInstanceVariablesDirectly">(),
                    reinterpret_cast<IMP>(&accessInstanceVariablesDirectly), "B@:");
    if (declaration.initialise != nullptr) {
        class_addMethod(meta, selector<"initialize">(), declaration.initialise, "v@:");
        lateClasses().push_back(cls);
    } else {
        addMethods(cls, rows);
    }
    objc_registerClassPair(cls);
    return {cls, ivar_getOffset(class_getInstanceVariable(cls, name))};
}

void initialise(Class own, id cls, SEL name, std::span<const MethodRow> rows) {
    if (reinterpret_cast<Class>(cls) == own) {
        contained("initialize", [&] { addMethods(own, rows); });
    }
    const Class meta = object_getClass(object(class_getSuperclass(own)));
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

} // namespace detail

void makeMethodsKnown() {
    for (const Class cls : detail::lateClasses()) {
        static_cast<void>(wrap(object(cls)).class_());
    }
}

} // namespace objc
