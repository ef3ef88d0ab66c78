// SFSpeechRecognizer: understands speech of one language.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/locale.hpp"
#include "bindings/objc/block.hpp"
#include "bindings/speech/speech_audio_buffer_recognition_request.hpp"
#include "bindings/speech/speech_recognition_result.hpp"
#include "bindings/speech/speech_recognition_task.hpp"

namespace sf {

/// Whether a person lets the application listen; the platform's numbers.
enum class SpeechRecognizerAuthorizationStatus : long {
    notDetermined = 0,
    denied = 1,
    restricted = 2,
    authorized = 3
};

struct SpeechRecognizer : objc::Kind<SpeechRecognizer, "SFSpeechRecognizer"> {
    using Kind::Kind;
    using Authorization = objc::Block<void(SpeechRecognizerAuthorizationStatus status)>;
    /// Called on the main thread, with a result or an error.
    using ResultHandler = objc::Block<void(SpeechRecognitionResult result, ns::Error error)>;

    /// Nil for a language that is not understood.
    static SpeechRecognizer withLocale(ns::Locale locale) {
        return make<"initWithLocale:">(locale);
    }
    /// Asks a person, once; `told` is called on any thread.
    static void requestAuthorization(Authorization told) {
        sendClass<"requestAuthorization:">(told);
    }
    [[nodiscard]] bool isAvailable() const { return send<"isAvailable", bool>(); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
    [[nodiscard]] SpeechRecognitionTask recognitionTask(SpeechAudioBufferRecognitionRequest request,
                                                        ResultHandler handler) const {
        return send<"recognitionTaskWithRequest:resultHandler:", SpeechRecognitionTask>(request,
                                                                                        handler);
    }
};

} // namespace sf
