// SFSpeechRecognitionResult: what was understood until now, or at last.
#pragma once

#include "bindings/speech/speech_recognition_result.hpp"
#include "desktop/class.hpp"
#include "desktop/speech/transcription.hpp"

namespace desktop {

class SpeechRecognitionResult
    : public PlatformClass<SpeechRecognitionResult, sf::SpeechRecognitionResult> {
public:
    static constexpr auto methods() {
        using Self = SpeechRecognitionResult;
        return std::array{
            objc::method<"bestTranscription", &Self::transcription_>(),
            objc::method<"isFinal", &Self::isFinal>(),
        };
    }

    static sf::SpeechRecognitionResult with(ns::String text, bool isFinal) {
        const auto result = Kind::make();
        of(result).transcription_ = Transcription::with(text);
        of(result).isFinal_ = isFinal;
        return result;
    }

private:
    [[nodiscard]] bool isFinal() const { return isFinal_; }

    objc::Strong<sf::Transcription> transcription_;
    bool isFinal_ = false;
};

} // namespace desktop
