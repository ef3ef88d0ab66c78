// AVSpeechSynthesisVoice.
#pragma once

#include "bindings/foundation/string.hpp"

namespace av {

struct SpeechSynthesisVoice : objc::Kind<SpeechSynthesisVoice, "AVSpeechSynthesisVoice"> {
    using Kind::Kind;

    /// The voice of a language such as "zh-TW", the system's own language for nil; nil when there
    /// is none.
    static SpeechSynthesisVoice withLanguage(ns::String code) {
        return sendClass<"voiceWithLanguage:", SpeechSynthesisVoice>(code);
    }
    [[nodiscard]] ns::String language() const { return send<"language", ns::String>(); }
};

} // namespace av
