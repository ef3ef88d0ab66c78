// Registering every framework, in the order in which they build on each other.
#include "desktop/platform/platform.hpp"

#include "desktop/avfaudio/audio_engine.hpp"
#include "desktop/avfaudio/speech_synthesizer.hpp"
#include "desktop/messageui/mail_compose_view_controller.hpp"
#include "desktop/replaykit/screen_recorder.hpp"
#include "desktop/safariservices/safari_view_controller.hpp"
#include "desktop/speech/speech_recognizer.hpp"
#include "desktop/uikit/uikit.hpp"
#include "desktop/webkit/web_view.hpp"

#include "bindings/objc/pool.hpp"

namespace desktop {

void registerPlatform() {
    const objc::Pool pool;
    uikit::registerClasses();
    registerSpeechClasses();
    registerAudioEngineClasses();
    registerSpeechRecognitionClasses();
    registerReplayKitClasses();
    registerWebClasses();
    SafariViewController::registerClass();
    MailComposeViewController::registerClass();
}

void closePlatform() {
    const objc::Pool pool;
    ScreenRecorder::shared().close();
}

} // namespace desktop
