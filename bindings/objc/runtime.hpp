// The Objective-C runtime's C interface, as far as we use it, on the phone and under GNU libobjc.
#pragma once

#include <cstddef>

// Declared here, not taken from a system header: the two runtimes ship different headers for what
// is the same interface, and a cross-build has none.
struct objc_object;
struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;

using id = objc_object*;
using Class = objc_class*;
using SEL = const objc_selector*;
using Method = objc_method*;
using Ivar = objc_ivar*;
using IMP = void (*)();

namespace objc {
/// BOOL as it travels in a message: `bool` on the phone, `unsigned char` under GNU; both are one
/// byte, and any value but 0 is yes.
using Boolean = unsigned char;
} // namespace objc

/// One attribute of a property, as `class_addProperty` takes it ("T" = "@", "N" = "", …).
struct objc_property_attribute_t {
    const char* name;
    const char* value;
};

extern "C" {

Class objc_getClass(const char* name);
Class objc_getMetaClass(const char* name);
Class objc_lookUpClass(const char* name);
Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes);
void objc_registerClassPair(Class cls);

Class object_setClass(id object, Class cls);
id objc_alloc(Class cls);
id objc_retain(id object) noexcept;
void objc_release(id object) noexcept;
id objc_autorelease(id object) noexcept;
void* objc_autoreleasePoolPush() noexcept;
void objc_autoreleasePoolPop(void* pool) noexcept;
const char* object_getClassName(id object);

const char* class_getName(Class cls);
Class class_getSuperclass(Class cls);
objc::Boolean class_isMetaClass(Class cls);
objc::Boolean class_addIvar(Class cls, const char* name, std::size_t size, unsigned char log2Align,
                            const char* type);
objc::Boolean class_addMethod(Class cls, SEL name, IMP implementation, const char* types);
IMP class_replaceMethod(Class cls, SEL name, IMP implementation, const char* types);
objc::Boolean class_addProperty(Class cls, const char* name,
                                const objc_property_attribute_t* attributes, unsigned int count);
Method class_getInstanceMethod(Class cls, SEL name);
Method class_getClassMethod(Class cls, SEL name);
IMP class_getMethodImplementation(Class cls, SEL name);

IMP method_getImplementation(Method method);
IMP method_setImplementation(Method method, IMP implementation);
const char* method_getTypeEncoding(Method method);

Ivar class_getInstanceVariable(Class cls, const char* name);
std::ptrdiff_t ivar_getOffset(Ivar ivar);

SEL sel_registerName(const char* name);
const char* sel_getName(SEL selector);
objc::Boolean sel_isEqual(SEL first, SEL second);

void objc_setAssociatedObject(id object, const void* key, id value, unsigned long policy);
id objc_getAssociatedObject(id object, const void* key);

id objc_initWeak(id* place, id object);
id objc_storeWeak(id* place, id object);
id objc_loadWeakRetained(id* place);
void objc_destroyWeak(id* place);

#ifdef __APPLE__
Class object_getClass(id object);
void objc_msgSend();
#else
IMP objc_msg_lookup(id receiver, SEL selector);
#endif
}

#ifndef __APPLE__
/// GNU libobjc has this in its header only.
inline Class object_getClass(id object) {
    return object != nullptr ? *reinterpret_cast<Class*>(object) : nullptr;
}
#endif

namespace objc {

/// Whether `lookUp` takes nil, and what it returns answers zero then in the registers of a result.
#ifdef __APPLE__
inline constexpr bool lookUpTakesNil = true;
#else
inline constexpr bool lookUpTakesNil = false;
#endif

/// The function that a message to `receiver` reaches, to be called with the receiver and the
/// selector before the arguments. Unknown selectors reach the runtime's forwarding.
inline IMP lookUp([[maybe_unused]] id receiver, [[maybe_unused]] SEL selector) {
#ifdef __APPLE__
    return &objc_msgSend;
#else
    return objc_msg_lookup(receiver, selector);
#endif
}

} // namespace objc
