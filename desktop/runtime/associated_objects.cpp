// Associated objects, which GNU libobjc lacks.
#include "bindings/objc/associated.hpp"
#include "desktop/runtime/side_table.hpp"

using desktop::AssociatedValue;
using desktop::SideTable;

namespace {

/// The value as its owner keeps it. The policies beyond these differ in atomicity only, and every
/// access is locked here.
AssociatedValue kept(objc::Object value, unsigned long policy) {
    constexpr unsigned long copies = 3;
    switch (static_cast<objc::Association>(policy & copies)) {
    case objc::Association::assign:
        return {value, nullptr};
    case objc::Association::copyNonatomic: {
        objc::Strong<objc::Object> copy = objc::Copied<objc::Object>(value);
        return {copy, copy};
    }
    default:
        return {value, value};
    }
}

} // namespace

void objc_setAssociatedObject(id owner, const void* key, id object, unsigned long policy) {
    AssociatedValue value = kept(objc::wrap(object), policy);
    // Swapped, so that the former value is released after the lock: its death may come back here.
    const auto lock = SideTable::shared().lock();
    std::swap(SideTable::shared().entry(owner).values[key], value);
}

id objc_getAssociatedObject(id owner, const void* key) {
    const auto lock = SideTable::shared().lock();
    const desktop::SideEntry* entry = SideTable::shared().find(owner);
    if (entry == nullptr) {
        return nullptr;
    }
    const auto value = entry->values.find(key);
    return value == entry->values.end() ? nullptr : value->second.object.raw();
}
