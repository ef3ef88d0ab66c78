// AVSpeechSynthesisVoice.
#pragma once

#include "bindings/avfaudio/speech_synthesis_voice.hpp"
#include "bindings/foundation/array.hpp"
#include "desktop/avfaudio/speech_voices.hpp"
#include "desktop/class.hpp"

namespace desktop {

class SpeechSynthesisVoice : public PlatformClass<SpeechSynthesisVoice, av::SpeechSynthesisVoice> {
public:
    static constexpr auto methods() {
        using Self = SpeechSynthesisVoice;
        return std::array{
            objc::classMethod<"voiceWithLanguage:", &Self::withLanguage>(),
            objc::classMethod<"speechVoices", &Self::speechVoices>(),
            objc::classMethod<"currentLanguageCode", &Self::currentLanguageCode>(),
            objc::method<"language", &Self::language>(),
        };
    }

    /// The system's own voice for nil.
    static const speech::VoiceName& nameOf(av::SpeechSynthesisVoice voice) {
        return voice ? *of(voice).name_ : *speech::voiceFor(speech::systemLanguage);
    }

private:
    static av::SpeechSynthesisVoice with(const speech::VoiceName& name) {
        const auto voice = Kind::make();
        of(voice).name_ = &name;
        return voice;
    }
    static av::SpeechSynthesisVoice withLanguage(Class, ns::String code) {
        const auto* name = code ? speech::voiceFor(code.utf8()) : &nameOf(nullptr);
        return name == nullptr ? nullptr : with(*name);
    }
    static ns::Array speechVoices(Class) {
        const auto all = ns::MutableArray::make();
        for (const speech::VoiceName& name : speech::voices()) {
            all.add(with(name));
        }
        return all;
    }
    static ns::String currentLanguageCode(Class) {
        return ns::String::fromUtf8(speech::systemLanguage);
    }
    [[nodiscard]] ns::String language() const { return ns::String::fromUtf8(name_->language); }

    const speech::VoiceName* name_ = speech::voiceFor(speech::systemLanguage);
};

} // namespace desktop
