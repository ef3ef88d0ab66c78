// The table beside the objects, and how it learns of their deaths.
#include "desktop/runtime/side_table.hpp"

#include "desktop/runtime/dispatch_tables.hpp"
#include "desktop/runtime/reference_count.hpp"

#include <bit>
#include <cstdint>

namespace desktop {
namespace {

/// In place of the root class's own, which does the same but for the weak references.
void release(id object, SEL) {
    if (ReferenceCount(object).takeLast()) {
        SideTable::shared().loseWeakReferences(object);
        objc::send<"dealloc">(object);
    }
}

/// A class whose instances are looked up when their memory goes.
template <objc::Literal Name>
struct Mortal {
    static inline IMP formerDealloc = nullptr;

    static void watch() {
        const Class cls = objc_getClass(Name.data());
        const SEL name = objc::selector<"dealloc">();
        formerDealloc = method_getImplementation(class_getInstanceMethod(cls, name));
        class_replaceMethod(cls, name, reinterpret_cast<IMP>(&dealloc), "v@:");
    }
    static void dealloc(id object, SEL name) {
        SideTable::shared().forget(object);
        objc::invoke<void>(formerDealloc, object, name);
    }
};

template <objc::Literal... Names>
void watchClasses() {
    (Mortal<Names>::watch(), ...);
}

void clear(std::vector<id*>& places) {
    for (id* place : places) {
        *place = nullptr;
    }
    places.clear();
}

} // namespace

SideTable& SideTable::shared() {
    static auto* table = new SideTable; // never destroyed: objects die until the very end
    return *table;
}

SideTable::Crowd& SideTable::crowdOf(id object) {
    constexpr unsigned alignment = 4; // the lower bits are the same for all objects
    return entryCounts_[(std::bit_cast<std::uintptr_t>(object) >> alignment) % entryCounts_.size()];
}

SideEntry& SideTable::entry(id object) {
    watchDeaths();
    const auto [place, isNew] = entries_.try_emplace(object);
    crowdOf(object) += isNew ? 1 : 0;
    return place->second;
}

SideEntry* SideTable::find(id object) {
    const auto found = entries_.find(object);
    return found == entries_.end() ? nullptr : &found->second;
}

void SideTable::loseWeakReferences(id object) {
    if (crowdOf(object) == 0) {
        return;
    }
    const auto held = lock();
    if (SideEntry* entry = find(object); entry != nullptr) {
        clear(entry->weakPlaces);
    }
}

void SideTable::forget(id object) {
    if (crowdOf(object) == 0) {
        return;
    }
    SideEntry last; // released after the lock: what dies with it may come back here
    const auto held = lock();
    if (const auto found = entries_.find(object); found != entries_.end()) {
        last = std::move(found->second);
        entries_.erase(found);
        --crowdOf(object);
        clear(last.weakPlaces);
    }
}

void SideTable::watchDeaths() {
    if (!std::exchange(watching_, true)) {
        watchClasses<"NSObject", "NSProxy">();
        // Foundation's collections give their memory back without telling the root class.
        watchClasses<"GSArray", "GSInlineArray", "GSMutableArray", "GSDictionary",
                     "GSMutableDictionary", "GSSet", "GSMutableSet">();
        class_replaceMethod(objc_getClass("NSObject"), objc::selector<"release">(),
                            reinterpret_cast<IMP>(&release), "v@:");
        renewDispatchTables(objc_getClass("NSObject"));
        renewDispatchTables(objc_getClass("NSProxy"));
    }
}

} // namespace desktop
