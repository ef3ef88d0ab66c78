// Utterances for the synthesizer.
#include "library/common/speaking.hpp"

#include "library/common/text_parts.hpp"

namespace wentra {
namespace {

av::SpeechUtterance utterance(ns::String text, double delay) {
    const auto made = av::SpeechUtterance::withString(text);
    made.setPreUtteranceDelay(delay);
    return made;
}

} // namespace

void stopSpeaking(av::SpeechSynthesizer synthesizer) {
    synthesizer.stopSpeaking(av::SpeechBoundary::immediate);
}

void speak(av::SpeechSynthesizer synthesizer, ns::String text, double delay) {
    stopSpeaking(synthesizer);
    if (text) {
        synthesizer.speak(utterance(text, delay));
    }
}

void speakLines(av::SpeechSynthesizer synthesizer, ns::String text, double delay,
                ns::String language) {
    stopSpeaking(synthesizer);
    const std::u16string units = text.utf16();
    for (const std::u16string_view line : splitLines(units)) {
        const auto made = utterance(ns::String::from(line), delay);
        if (language) {
            made.setVoice(av::SpeechSynthesisVoice::withLanguage(language));
        }
        synthesizer.speak(made);
    }
}

} // namespace wentra
