// The whole platform: every framework that is played here.
#pragma once

namespace desktop {

/// Registers the classes of all frameworks, superclasses first. Once, before any of them is used;
/// main thread.
void registerPlatform();

} // namespace desktop
