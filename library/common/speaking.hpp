// Reads text aloud.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"

namespace wentra {

/// Stops at once whatever is being said.
void stopSpeaking(av::SpeechSynthesizer synthesizer);

/// Stops, then says the text as one utterance, after `delay` seconds. Nil is silence.
void speak(av::SpeechSynthesizer synthesizer, ns::String text, double delay);

/// Stops, then says each line of the text as an utterance of its own, each after `delay` seconds,
/// with the voice of that language (nil: the system's).
void speakLines(av::SpeechSynthesizer synthesizer, ns::String text, double delay,
                ns::String language);

} // namespace wentra
