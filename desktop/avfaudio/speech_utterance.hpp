// AVSpeechUtterance.
#pragma once

#include "bindings/avfaudio/speech_utterance.hpp"
#include "desktop/avfaudio/speech_sound.hpp"
#include "desktop/avfaudio/speech_synthesis_voice.hpp"
#include "desktop/class.hpp"

namespace desktop {

class SpeechUtterance : public PlatformClass<SpeechUtterance, av::SpeechUtterance> {
public:
    static constexpr auto methods() {
        using Self = SpeechUtterance;
        return std::array{
            objc::classMethod<"speechUtteranceWithString:", &Self::withString>(),
            objc::method<"initWithString:", &Self::initWithString>(),
            objc::method<"speechString", &Self::text_>(),
            objc::property<"voice", &Self::voice_>(),
            objc::property<"rate", &Self::rate_>(),
            objc::property<"pitchMultiplier", &Self::pitchMultiplier_>(),
            objc::property<"volume", &Self::volume_>(),
            objc::property<"preUtteranceDelay", &Self::preUtteranceDelay_>(),
            objc::property<"postUtteranceDelay", &Self::postUtteranceDelay_>(),
        };
    }

    [[nodiscard]] ns::String text() const { return text_; }
    [[nodiscard]] const speech::VoiceName& voiceName() const {
        return SpeechSynthesisVoice::nameOf(voice_);
    }
    [[nodiscard]] double preUtteranceDelay() const { return preUtteranceDelay_; }
    [[nodiscard]] double postUtteranceDelay() const { return postUtteranceDelay_; }
    /// What the synthesiser is to say.
    [[nodiscard]] speech::Speech speech() const {
        return {text_.utf8(), std::string(voiceName().synthesiser), static_cast<double>(rate_),
                static_cast<double>(pitchMultiplier_), static_cast<double>(volume_)};
    }

private:
    static av::SpeechUtterance withString(Class, ns::String text) {
        return Kind::make<"initWithString:">(text);
    }
    av::SpeechUtterance initWithString(ns::String text) {
        text_ = text;
        return self();
    }

    objc::Copied<ns::String> text_;
    objc::Strong<av::SpeechSynthesisVoice> voice_;
    float rate_ = 0.5F; ///< the platform's default, like those that follow
    float pitchMultiplier_ = 1;
    float volume_ = 1;
    double preUtteranceDelay_ = 0;
    double postUtteranceDelay_ = 0;
};

} // namespace desktop
