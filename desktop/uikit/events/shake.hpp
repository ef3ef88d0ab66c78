// Shaking the phone.
#pragma once

namespace desktop {

/// The first responder is told that a shake has begun and that it has ended; where there is none,
/// the key window. Nobody is told while the application is not in front. Main thread.
void shakePhone();

} // namespace desktop
