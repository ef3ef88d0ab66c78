// Utterances for the synthesizer.
#include "library/toolbox/translation/speaking.hpp"

#include "library/toolbox/translation/translation_request.hpp"

namespace wentra::toolbox {
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
    for (const std::u16string& line : linesOf(text.utf16())) {
        const auto made = utterance(ns::String::from(line), delay);
        if (language) {
            made.setVoice(av::SpeechSynthesisVoice::withLanguage(language));
        }
        synthesizer.speak(made);
    }
}

} // namespace wentra::toolbox
