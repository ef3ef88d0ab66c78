// Translating what was copied, picked or given, and showing what came of it.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "library/toolbox/grid/selection.hpp"
#include "library/toolbox/translation/translation_request.hpp"

namespace wentra::toolbox {

/// The translation tool, the helpers that it is built from, and the voice that reads aloud. It
/// works on a controller that was never shown.
class Translation : public objc::Part<FloatingViewController> {
public:
    Translation(FloatingViewController whole, const Selection& selection)
        : Part(whole), selection_(selection) {}
    static Translation& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"synth", &Translation::synth_>(),
            objc::method<"wzjhButtonClicked:", &Translation::translatePasteboard>(),
            objc::method<"wzjhButtonClicked:selectedText:", &Translation::translateFor>(),
            objc::method<"translateText:", &Translation::translateText>(),
            objc::method<"URLEncodedString:", &Translation::encoded>(),
            objc::method<"SHA256HashString:", &Translation::digest>(),
            objc::method<"stringContainsChinese:", &Translation::hasChinese>(),
            objc::method<"showAlertWithTitle:message:originalText:translatedText:",
                         &Translation::showResult>(),
        };
    }

    /// The voice has said nothing yet.
    void begin() { synth_ = av::SpeechSynthesizer::make(); }
    /// The voice, made when it is first needed.
    av::SpeechSynthesizer synthesizer();

private:
    void translatePasteboard(objc::Object sender);
    void translateFor(objc::Object, ns::String text) { translate(text); }
    void translateText(ns::String text);
    [[nodiscard]] ns::String encoded(ns::String text) const;
    [[nodiscard]] ns::String digest(ns::String text) const;
    [[nodiscard]] bool hasChinese(ns::String text) const { return containsChinese(text.utf16()); }
    void showResult(ns::String title, ns::String message, ns::String original,
                    ns::String translated);

    void translate(ns::String given);
    void translateByService(ns::String text, const TranslationAccount& account);
    [[nodiscard]] ns::String takeText(ns::String given) const;
    void show(ns::String title, ns::String message, ns::String original,
              ns::String translated) const;
    void showError(ns::String message) const;

    const Selection& selection_;
    objc::Strong<av::SpeechSynthesizer> synth_; // nil before it is needed
};

} // namespace wentra::toolbox
