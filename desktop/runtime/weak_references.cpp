// Weak references, which GNU libobjc lacks: variables that become nil when their object dies.
#include "desktop/runtime/reference_count.hpp"
#include "desktop/runtime/side_table.hpp"

#include <algorithm>

using desktop::ReferenceCount;
using desktop::SideEntry;
using desktop::SideTable;

namespace {

/// Whether the object's references are counted by the root class. Others, such as constant strings,
/// have ways of their own and perhaps no number before them.
bool isCounted(id object) {
    const SEL release = objc::selector<"release">();
    return class_getMethodImplementation(object_getClass(object), release) ==
           class_getMethodImplementation(objc_getClass("NSObject"), release);
}

bool isAlive(id object) {
    if (isCounted(object)) {
        return ReferenceCount(object).isAlive();
    }
    // A count of its own on top of the root class's; -1 is what never dies.
    const long count = objc::send<"retainCount", long>(object);
    return count > ReferenceCount::dying / 2 && count != 0;
}

id retained(id object) {
    if (object == nullptr) {
        return nullptr;
    }
    if (isCounted(object)) {
        return ReferenceCount(object).add() ? object : nullptr;
    }
    return isAlive(object) ? objc::send<"retain", id>(object) : nullptr;
}

void remember(id* place, id object) {
    *place = object != nullptr && isAlive(object) ? object : nullptr;
    if (*place != nullptr) {
        SideTable::shared().entry(object).weakPlaces.push_back(place);
    }
}

void forget(id* place) {
    SideEntry* entry = *place == nullptr ? nullptr : SideTable::shared().find(*place);
    if (entry == nullptr) {
        return;
    }
    auto& places = entry->weakPlaces;
    std::swap(*std::ranges::find(places, place), places.back());
    places.pop_back();
}

} // namespace

id objc_initWeak(id* place, id object) {
    const auto lock = SideTable::shared().lock();
    remember(place, object);
    return *place;
}

id objc_storeWeak(id* place, id object) {
    const auto lock = SideTable::shared().lock();
    forget(place);
    remember(place, object);
    return *place;
}

id objc_loadWeakRetained(id* place) {
    const auto lock = SideTable::shared().lock();
    return retained(*place);
}

void objc_destroyWeak(id* place) {
    const auto lock = SideTable::shared().lock();
    forget(place);
    *place = nullptr;
}
