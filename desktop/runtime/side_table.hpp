// What the runtime knows of an object beyond the object itself: a table beside the objects, emptied
// as they die.
#pragma once

#include "bindings/objc/strong.hpp"

#include <array>
#include <atomic>
#include <map>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace desktop {

/// A value associated with an object, and the reference to it when it is kept.
struct AssociatedValue {
    objc::Object object;
    objc::Strong<objc::Object> owned;
};

/// One object's entry.
struct SideEntry {
    /// They live as long as the object's memory.
    std::map<const void*, AssociatedValue> values;
    /// The weak references to the object: variables that hold it, and become nil when its last
    /// reference has gone.
    std::vector<id*> weakPlaces;
};

/// The table. Objects without an entry pay next to nothing when they die.
class SideTable {
public:
    static SideTable& shared();

    /// `entry` and `find` are called with the lock held. A thread may take it again: an object's
    /// own way to be retained may come back here.
    [[nodiscard]] std::unique_lock<std::recursive_mutex> lock() { return std::unique_lock(mutex_); }

    /// The object's entry, made when it has none.
    SideEntry& entry(id object);
    /// The object's entry, or null.
    SideEntry* find(id object);

    /// The object begins to die: the weak references to it become nil.
    void loseWeakReferences(id object);
    /// The object's memory goes: what is known of it is forgotten.
    void forget(id object);

    /// From now on every object that dies passes here; so it is from the first entry on at the
    /// latest. Early in a process there are few dispatch tables to renew for it.
    void watchDeaths();

private:
    /// Objects share places here by their addresses.
    using Crowd = std::atomic<unsigned>;
    [[nodiscard]] Crowd& crowdOf(id object);

    std::recursive_mutex mutex_;
    std::unordered_map<id, SideEntry> entries_;
    /// How many entries there are of each crowd: most objects are of one that has none, and need
    /// not be looked up under the lock.
    std::array<Crowd, 1U << 14U> entryCounts_{};
    bool watching_ = false;
};

} // namespace desktop
