// System sounds, haptic ones among them.
#pragma once

using SystemSoundID = unsigned int;

/// Plays the sound of that number; unknown numbers play nothing. Does not wait. Any thread.
extern "C" void AudioServicesPlaySystemSound(SystemSoundID sound);
