// Numbers for objects that have been handed out, by which they can be meant again.
#pragma once

#include "bindings/objc/strong.hpp"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace desktop::host {

/// Keeps every object that has a number alive. Main thread.
class Handles {
public:
    /// The object's number, always the same for the same object; from 1 on.
    std::uint64_t numberOf(objc::Object object);
    /// Nil for a number that was never given, or whose object is not initialised.
    [[nodiscard]] objc::Object object(std::uint64_t number) const;

    /// A number of its own for an object that is allocated and not initialised, whose reference is
    /// taken over: classes may allocate one object for all of their instances.
    std::uint64_t addAllocated(objc::Object object);
    /// The object of a number that `addAllocated` gave, as long as it is not initialised, else nil.
    [[nodiscard]] objc::Object allocated(std::uint64_t number) const;
    /// Gives the allocated object up to its initialiser, which owns it.
    [[nodiscard]] objc::Object releaseAllocated(std::uint64_t number);
    /// What the initialiser gave has the number from now on, unless it has one already.
    void setInitialised(std::uint64_t number, objc::Object object);

private:
    std::vector<objc::Strong<objc::Object>> objects_;
    std::unordered_map<id, std::uint64_t> numbers_;
    /// Never released: what is not initialised cannot be deallocated either.
    std::unordered_map<std::uint64_t, objc::Object> allocated_;
};

} // namespace desktop::host
