// The commands that tell how recording of the screen and recognition of speech turn out.
#include "desktop/host/arguments.hpp"
#include "desktop/host/commands.hpp"

#include "desktop/avfaudio/microphone.hpp"
#include "desktop/replaykit/screen_recorder.hpp"
#include "desktop/speech/recognition_settings.hpp"

namespace desktop::host {
namespace {

/// A text; `null` is the empty one.
std::string textOrNull(const Json& request, const char* name) {
    const Json* value = argument(request, name);
    return value == nullptr || value->is_null() ? std::string() : stringArgument(request, name);
}

Json nullIfEmpty(const std::string& text) { return text.empty() ? Json() : Json(text); }

} // namespace

Json recorder(Session&, const Json& request) {
    ScreenRecorder& recorder = ScreenRecorder::shared();
    const bool interrupts = flagArgument(request, "interrupt");
    if (argument(request, "fails") != nullptr) {
        recorder.setFails(flagArgument(request, "fails"));
    }
    if (interrupts) {
        recorder.interrupt();
    }
    return {{"recording", recorder.isRecording()}, {"fails", recorder.fails()}};
}

Json recognizer(Session&, const Json& request) {
    RecognitionSettings settings = RecognitionSettings::shared();
    if (argument(request, "authorized") != nullptr) {
        settings.authorized = flagArgument(request, "authorized");
    }
    if (argument(request, "available") != nullptr) {
        settings.available = flagArgument(request, "available");
    }
    if (request.contains("error")) {
        settings.error = textOrNull(request, "error");
    }
    if (request.contains("hears")) {
        Microphone::shared().say(textOrNull(request, "hears"));
    }
    settings.apply();
    return {{"authorized", settings.authorized},
            {"available", settings.available},
            {"hears", nullIfEmpty(Microphone::shared().text())},
            {"error", nullIfEmpty(settings.error)}};
}

} // namespace desktop::host
