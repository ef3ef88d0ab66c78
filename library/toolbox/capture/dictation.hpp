// Taking down speech, in the Settings application.
#pragma once

#include "bindings/avfaudio/audio_engine.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/speech/speech_recognizer.hpp"
#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// Listens while a finger rests on the button that starts recordings. Main thread, but for the tap.
class Dictation : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static Dictation& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"speechRecognizer", &Dictation::recognizer_>(),
            objc::property<"recognitionRequest", &Dictation::request_>(),
            objc::property<"recognitionTask", &Dictation::task_>(),
            objc::property<"audioEngine", &Dictation::engine_>(),
            objc::property<"speechString", &Dictation::text_>(),
            objc::method<"initiateVoiceRecognition", &Dictation::listen>(),
            objc::method<"terminateVoiceRecognition", &Dictation::finish>(),
            objc::method<"handleLongGesturePressRecord:", &Dictation::pressed>(),
        };
    }

    /// The panel is on the screen: in Settings, everything is made ready and a person is asked.
    void prepare();

private:
    void pressed(ui::LongPressGestureRecognizer press);
    void listen();
    void finish();

    void offerButton();
    void requestAuthorization() const;
    void tellOnce(bool isAuthorized) const;
    void startTask();
    bool startEngine() const;
    void understood(sf::SpeechRecognitionResult result, ns::Error error);
    void stopListening() const;
    void forgetTask();

    objc::Strong<sf::SpeechRecognizer> recognizer_;
    objc::Strong<sf::SpeechAudioBufferRecognitionRequest> request_;
    objc::Strong<sf::SpeechRecognitionTask> task_;
    objc::Strong<av::AudioEngine> engine_;
    objc::Strong<ns::String> text_;
    bool isOffered_ = false;
};

} // namespace wentra::toolbox
