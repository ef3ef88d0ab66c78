// The ways in which an application's requests begin, each to be tried with an address.
#pragma once

#include "bindings/foundation/url.hpp"

#include <functional>
#include <span>

namespace desktop::host {

/// What became of an address.
enum class Passage { passed, changed };

/// Told once, on the main thread, at once or when the load has come to its end.
using PassageHandler = std::function<void(Passage)>;

/// A method of the platform that applications begin with.
struct EntryPoint {
    const char* className;
    const char* method; ///< as people write it, with "+" before a class method
    /// Begins to load what has that address, and looks whether that is what is loaded.
    void (*load)(ns::String address, const PassageHandler& handler);
};

/// All ten. Main thread.
[[nodiscard]] std::span<const EntryPoint> entryPoints();

/// Adds the two methods among them that no platform has, as an application does in categories of
/// its own, and makes known what listens to connections. Once, before any library is loaded.
void installEntryPoints();

} // namespace desktop::host
