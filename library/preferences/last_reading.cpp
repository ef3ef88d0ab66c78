// One pointer, guarded while it is copied and never while anything is read.
#include "library/preferences/last_reading.hpp"

#include <mutex>
#include <utility>

namespace wentra::preferences {
namespace {

constinit std::mutex mutex;

std::shared_ptr<const ParsedFile>& kept() {
    static auto* file = new std::shared_ptr<const ParsedFile>; // outlives the last hooked call
    return *file;
}

} // namespace

std::shared_ptr<const ParsedFile> lastReading() {
    const std::scoped_lock lock(mutex);
    return kept();
}

void setLastReading(std::shared_ptr<const ParsedFile> file) {
    const std::scoped_lock lock(mutex);
    kept().swap(file); // what was kept is given up after the lock
}

} // namespace wentra::preferences
