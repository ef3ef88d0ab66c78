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
    /// Nil for a number that was never given.
    [[nodiscard]] objc::Object object(std::uint64_t number) const;

private:
    std::vector<objc::Strong<objc::Object>> objects_;
    std::unordered_map<id, std::uint64_t> numbers_;
};

} // namespace desktop::host
