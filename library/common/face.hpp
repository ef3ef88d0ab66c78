// What a room of the library shows to the start-up: its classes and the tables of its changes.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra {

/// Gives the rows of one table of changes.
using Table = std::span<const objc::Change> (*)();

/// What a compiled image would bring into being before any load method runs.
struct Face {
    /// Makes a class of ours known, or leaves an application's own of that name alone.
    using Declaration = void (*)();

    std::span<const Declaration> classes;
    std::span<const Table> categories; ///< what is added to the platform's classes
};

} // namespace wentra
