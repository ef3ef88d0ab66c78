// The tap is one of the system's sounds.
#include "library/common/haptic.hpp"

#include "bindings/audiotoolbox/system_sound.hpp"
#include "bindings/dispatch/dispatch.hpp"

namespace wentra {
namespace {

/// The platform's number of its short "pop".
constexpr SystemSoundID tapSound = 1520;
constexpr double pause = 0.1; // seconds

} // namespace

void hapticTap() { AudioServicesPlaySystemSound(tapSound); }

void doubleHapticTap() {
    hapticTap();
    dispatch::after(pause, dispatch::mainQueue(), &hapticTap);
}

} // namespace wentra
