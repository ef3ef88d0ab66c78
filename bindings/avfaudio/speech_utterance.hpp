// AVSpeechUtterance: a text and how it is spoken.
#pragma once

#include "bindings/avfaudio/speech_synthesis_voice.hpp"

namespace av {

struct SpeechUtterance : objc::Kind<SpeechUtterance, "AVSpeechUtterance"> {
    using Kind::Kind;

    static SpeechUtterance withString(ns::String text) {
        return sendClass<"speechUtteranceWithString:", SpeechUtterance>(text);
    }
    [[nodiscard]] ns::String speechString() const { return send<"speechString", ns::String>(); }
    /// Nil stands for the system's own language.
    void setVoice(SpeechSynthesisVoice voice) const { send<"setVoice:">(voice); }
    /// Seconds of silence before the text.
    void setPreUtteranceDelay(double seconds) const { send<"setPreUtteranceDelay:">(seconds); }
};

} // namespace av
