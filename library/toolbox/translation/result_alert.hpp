// The system alert that shows a translation, or an error.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "library/toolbox/translation/translation_result.hpp"

namespace wentra::toolbox {

/// Presents the alert above everything, with the actions that the preferences ask for. The
/// synthesizer reads aloud; it is kept as long as the alert. Main thread.
void presentResultAlert(const TranslationResult& result, av::SpeechSynthesizer synthesizer);

} // namespace wentra::toolbox
