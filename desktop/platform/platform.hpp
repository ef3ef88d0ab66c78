// The whole platform: every framework that is played here.
#pragma once

namespace desktop {

/// Registers the classes of all frameworks, superclasses first. Once, before any of them is used;
/// main thread.
void registerPlatform();

/// What is being written to the device is brought to its end. Before the process ends; main thread.
void closePlatform();

} // namespace desktop
