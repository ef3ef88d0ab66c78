// What was made last, for whoever needs the same again.
#pragma once

#include <memory>
#include <mutex>
#include <utility>

namespace wentra {

/// One immutable value of that type for the whole process. The lock is held while the pointer is
/// copied, never while a value is made or given up. Any thread.
template <class Value>
class Latest {
public:
    /// Null before the first.
    static std::shared_ptr<const Value> get() {
        const std::scoped_lock lock(mutex);
        return kept();
    }
    static void set(std::shared_ptr<const Value> value) {
        const std::scoped_lock lock(mutex);
        kept().swap(value); // what was kept is given up after the lock
    }

private:
    static std::shared_ptr<const Value>& kept() {
        static auto* value = new std::shared_ptr<const Value>; // outlives the last hooked call
        return *value;
    }
    static inline constinit std::mutex mutex;
};

} // namespace wentra
