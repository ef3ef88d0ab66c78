// What GNU libobjc's classes and methods are made of: compilers lay them out, so it is fixed.
#pragma once

#include "bindings/objc/runtime.hpp"

#include <cstddef>
#include <cstdint>

namespace desktop {

struct MethodList;

/// What a class answers, by the selectors' numbers. Those of subclasses are copies that share what
/// they have not changed.
struct DispatchTable {
    void* buckets;
    void* emptyBucket;
    std::size_t version;
    short referenceCount; ///< its own and its copies'
    DispatchTable* original;
    std::size_t capacity;
};

} // namespace desktop

struct objc_selector {
    std::size_t number; ///< the same for all selectors of a name
    const char* types;  ///< null where the selector was registered by its name alone
};

struct objc_method {
    SEL name;
    const char* types;
    IMP implementation;
};

struct objc_class {
    Class isa;
    Class superclass; ///< while the class is in construction, the superclass's name
    const char* name;
    long version;
    unsigned long info;
    long instanceSize;
    void* instanceVariables;
    desktop::MethodList* methods;
    desktop::DispatchTable* dispatchTable;
    Class subclasses; ///< the first; the next is its sibling
    Class sibling;
    void* protocols;
    void* layout;
};

namespace desktop {

/// Stands before its methods.
struct MethodList {
    MethodList* next;
    int count;

    objc_method* methods() { return reinterpret_cast<objc_method*>(this + 1); }
};

/// The runtime numbers its tables' places by bucket, in the lower half, and place in the bucket.
inline std::size_t placeOf(SEL name) {
    constexpr std::size_t bucketSize = 32;
    constexpr unsigned half = 32;
    return static_cast<std::uint32_t>(name->number) * bucketSize + (name->number >> half);
}

/// Bits of `objc_class::info`.
namespace info {
inline constexpr unsigned long isClass = 0x1;
inline constexpr unsigned long isResolved = 0x8;
inline constexpr unsigned long isInConstruction = 0x10;
} // namespace info

} // namespace desktop

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier)
struct objc_mutex;
extern objc_mutex* __objc_runtime_mutex;
int objc_mutex_lock(objc_mutex* mutex);
int objc_mutex_unlock(objc_mutex* mutex);

extern desktop::DispatchTable* __objc_uninstalled_dtable;
void sarray_at_put_safe(desktop::DispatchTable* table, std::size_t number, IMP implementation);

Method search_for_method_in_list(desktop::MethodList* list, SEL name);
void __objc_update_dispatch_table_for_class(Class cls);
objc::Boolean __objc_init_class(Class cls);
void __objc_register_instance_methods_to_class(Class cls);
void __objc_resolve_class_links();
// NOLINTEND(bugprone-reserved-identifier)

} // extern "C"

namespace desktop {

/// Holds the runtime's own lock, which a thread may take several times.
class RuntimeLock {
public:
    RuntimeLock() { objc_mutex_lock(__objc_runtime_mutex); }
    RuntimeLock(const RuntimeLock&) = delete;
    RuntimeLock& operator=(const RuntimeLock&) = delete;
    ~RuntimeLock() { objc_mutex_unlock(__objc_runtime_mutex); }
};

} // namespace desktop
