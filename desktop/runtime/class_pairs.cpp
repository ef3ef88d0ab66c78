// Adding methods to classes and registering new ones, in the place of GNU libobjc's functions.
// Those compare each method of a new class with all others by name, make selectors that know types,
// which takes comparing them with all types that the name has anywhere, and walk all classes twice
// for each new one. A selector that knows no types is what the phone has.
#include "desktop/runtime/dispatch_tables.hpp"
#include "desktop/runtime/runtime_structures.hpp"

#include <bit>
#include <bitset>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <new>
#include <utility>

extern "C" {
void objc_disposeClassPair(Class cls);
}

namespace desktop {
namespace {

bool isInConstruction(Class cls) { return (cls->info & info::isInConstruction) != 0; }

MethodList* resized(MethodList* list, unsigned int capacity) {
    void* const bytes = std::realloc(list, sizeof(MethodList) + capacity * sizeof(objc_method));
    if (bytes == nullptr) {
        throw std::bad_alloc();
    }
    return static_cast<MethodList*>(bytes);
}

/// Other threads may be reading the lists of a class that is in use.
void addToClassInUse(Class cls, const objc_method& method) {
    MethodList* const list = resized(nullptr, 1);
    *list = {cls->methods, 1};
    *list->methods() = method;
    cls->methods = list;
    renewDispatchTables(cls, *list->methods());
}

/// The one list of a class in construction has room for the next power of two.
void addToNewClass(Class cls, const objc_method& method) {
    const auto count =
        cls->methods == nullptr ? 0U : static_cast<unsigned int>(cls->methods->count);
    if (count == 0 || std::has_single_bit(count)) {
        cls->methods = resized(cls->methods, count == 0 ? 1 : 2 * count);
        *cls->methods = {nullptr, static_cast<int>(count)};
    }
    cls->methods->methods()[count] = method;
    ++cls->methods->count;
}

bool hasMethod(Class cls, SEL name) {
    return search_for_method_in_list(cls->methods, name) != nullptr;
}

/// Whether it has the method already. To search the list of a new class for each would take the
/// square of their number, so the class that is being made is remembered with its names' bits:
/// whose bit is not set is new. The caller holds the runtime's lock.
bool newClassHasMethod(Class cls, SEL name) {
    static Class last = nullptr;
    static std::bitset<4096> bits;
    const auto bitOf = [](SEL known) { return placeOf(known) % bits.size(); };
    if (cls != last) {
        last = cls;
        bits.reset();
        for (int index = 0; cls->methods != nullptr && index < cls->methods->count; ++index) {
            bits.set(bitOf(cls->methods->methods()[index].name));
        }
    }
    const bool mayHave = bits.test(bitOf(name));
    bits.set(bitOf(name));
    return mayHave && hasMethod(cls, name);
}

bool isNewPair(Class cls) {
    constexpr unsigned long newClass = info::isClass | info::isInConstruction;
    return cls != nullptr && (cls->info & newClass) == newClass && isInConstruction(cls->isa);
}

/// Its methods have their selectors already, where the runtime expects names.
void makeKnown(Class cls) {
    MethodList* const methods = std::exchange(cls->methods, nullptr);
    MethodList* const classMethods = std::exchange(cls->isa->methods, nullptr);
    __objc_init_class(cls);
    cls->isa->methods = classMethods;
    cls->methods = methods;
}

void addSubclass(Class superclass, Class cls) {
    cls->superclass = superclass;
    cls->sibling = std::exchange(superclass->subclasses, cls);
    cls->info |= info::isResolved;
}

void link(Class cls) {
    const auto* const name = reinterpret_cast<const char*>(cls->superclass);
    const Class superclass = name != nullptr ? objc_lookUpClass(name) : nullptr;
    if (superclass == nullptr || (superclass->info & info::isResolved) == 0) {
        __objc_register_instance_methods_to_class(cls);
        __objc_resolve_class_links();
        return;
    }
    cls->isa->isa = superclass->isa->isa;
    addSubclass(superclass->isa, cls->isa);
    addSubclass(superclass, cls);
}

/// A method's types are ours, its name is the runtime's.
void freeMethods(Class cls) {
    MethodList* const list = std::exchange(cls->methods, nullptr);
    for (int index = 0; list != nullptr && index < list->count; ++index) {
        std::free(const_cast<char*>(list->methods()[index].types));
    }
    std::free(list);
}

} // namespace
} // namespace desktop

objc::Boolean class_addMethod(Class cls, SEL name, IMP implementation, const char* types) {
    if (cls == nullptr || name == nullptr || implementation == nullptr || types == nullptr ||
        *types == '\0') {
        return 0;
    }
    const desktop::RuntimeLock lock;
    const bool isNew = desktop::isInConstruction(cls);
    if (isNew ? desktop::newClassHasMethod(cls, name) : desktop::hasMethod(cls, name)) {
        return 0;
    }
    const objc_method method{name, strdup(types), implementation};
    isNew ? desktop::addToNewClass(cls, method) : desktop::addToClassInUse(cls, method);
    return 1;
}

void objc_registerClassPair(Class cls) {
    if (!desktop::isNewPair(cls)) {
        return;
    }
    const desktop::RuntimeLock lock;
    if (objc_getClass(cls->name) != nullptr) {
        return;
    }
    cls->info &= ~desktop::info::isInConstruction;
    cls->isa->info &= ~desktop::info::isInConstruction;
    desktop::makeKnown(cls);
    desktop::link(cls);
}

void objc_disposeClassPair(Class cls) {
    static const auto next =
        reinterpret_cast<void (*)(Class)>(dlsym(RTLD_NEXT, "objc_disposeClassPair"));
    if (desktop::isNewPair(cls)) {
        desktop::freeMethods(cls);
        desktop::freeMethods(cls->isa);
        next(cls);
    }
}
