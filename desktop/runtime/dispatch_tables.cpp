// Renewing them.
#include "desktop/runtime/dispatch_tables.hpp"

#include "desktop/runtime/runtime_structures.hpp"

namespace desktop {
namespace {

/// A class without a table gets it at its first message; one that is being initialised has a table
/// that only the runtime knows. A table that has been copied cannot grow.
bool canBeChanged(const DispatchTable* table, SEL name) {
    return table != __objc_uninstalled_dtable &&
           (placeOf(name) < table->capacity || table->referenceCount == 1);
}

} // namespace

void renewDispatchTables(Class cls) { __objc_update_dispatch_table_for_class(cls); }

void renewDispatchTables(Class cls, const objc_method& method) {
    if (!canBeChanged(cls->dispatchTable, method.name)) {
        renewDispatchTables(cls);
        return;
    }
    sarray_at_put_safe(cls->dispatchTable, method.name->number, method.implementation);
    for (Class heir = cls->subclasses; heir != nullptr; heir = heir->sibling) {
        if (search_for_method_in_list(heir->methods, method.name) == nullptr) {
            renewDispatchTables(heir, method);
        }
    }
}

void setImplementation(Class cls, Method method, IMP implementation) {
    const RuntimeLock lock;
    method->implementation = implementation;
    renewDispatchTables(cls, *method);
}

} // namespace desktop
