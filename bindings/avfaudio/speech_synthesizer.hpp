// AVSpeechSynthesizer: speaks utterances one after the other.
#pragma once

#include "bindings/avfaudio/speech_utterance.hpp"

namespace av {

/// Where speech stops or pauses; the platform's numbers.
enum class SpeechBoundary : long { immediate = 0, word = 1 };

struct SpeechSynthesizer : objc::Kind<SpeechSynthesizer, "AVSpeechSynthesizer"> {
    using Kind::Kind;

    /// Speaks the utterance once those before it are over.
    void speak(SpeechUtterance utterance) const { send<"speakUtterance:">(utterance); }
    /// Forgets what is being spoken and what waits; false when there was nothing.
    bool stopSpeaking(SpeechBoundary boundary) const {
        return send<"stopSpeakingAtBoundary:", bool>(boundary);
    }
    /// Whether anything is being spoken or waits for it.
    [[nodiscard]] bool isSpeaking() const { return send<"isSpeaking", bool>(); }
};

} // namespace av
