// SFSpeechRecognitionResult: what is understood so far.
#pragma once

#include "bindings/speech/transcription.hpp"

namespace sf {

struct SpeechRecognitionResult : objc::Kind<SpeechRecognitionResult, "SFSpeechRecognitionResult"> {
    using Kind::Kind;

    [[nodiscard]] Transcription bestTranscription() const {
        return send<"bestTranscription", Transcription>();
    }
    /// Whether nothing more will come.
    [[nodiscard]] bool isFinal() const { return send<"isFinal", bool>(); }
};

} // namespace sf
