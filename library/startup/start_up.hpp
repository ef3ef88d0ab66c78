// What happens when the library is loaded, in one ordered table.
#pragma once

#include "library/common/face.hpp"

#include <span>
#include <string_view>
#include <vector>

namespace wentra::startup {

/// One step of the start-up.
struct Step {
    std::string_view name; ///< for readers and logs
    std::span<const Table> hooks;
    void (*action)() = nullptr; ///< what there is to do beside the hooks
};

/// The rooms' classes and categories, which the first step declares.
std::vector<Face> faces();

/// The class-load methods, then the eight initialisers, in the order in which they run.
std::span<const Step> steps();

/// Runs every step, once per process, on the thread that loads the library and before the host's
/// own code. A step that fails is logged and does not keep the others from running.
void startUp() noexcept;

} // namespace wentra::startup
