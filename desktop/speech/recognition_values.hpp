// SFTranscription and SFSpeechRecognitionResult: what was understood.
#pragma once

#include "bindings/speech/speech_recognition_result.hpp"
#include "desktop/class.hpp"

namespace desktop {

class Transcription : public PlatformClass<Transcription, sf::Transcription> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"formattedString", &Transcription::text_>()};
    }

    static sf::Transcription with(ns::String text) {
        const auto transcription = Kind::make();
        of(transcription).text_ = text;
        return transcription;
    }

private:
    objc::Copied<ns::String> text_;
};

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
