// From the microphone over the recognizer to an alert.
#include "library/toolbox/capture/dictation.hpp"

#include "bindings/foundation/bundle.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/foundation/user_defaults.hpp"
#include "library/common/alert.hpp"
#include "library/common/gestures.hpp"
#include "library/toolbox/capture/usage_description.hpp"
#include "library/toolbox/main_thread.hpp"

namespace wentra::toolbox {
namespace {

using namespace ns::literals;

constexpr unsigned long microphoneBus = 0;

bool mayListen() {
    return hasUsageDescription(u"NSSpeechRecognitionUsageDescription"_ns) &&
           hasUsageDescription(u"NSMicrophoneUsageDescription"_ns);
}

bool isInSettings() {
    return ns::Bundle::mainBundle().bundleIdentifier().isEqual(u"com.apple.Preferences"_ns);
}

} // namespace

void Dictation::prepare() {
    if (!isInSettings() || !mayListen() || task_) {
        return;
    }
    engine_ = av::AudioEngine::make();
    recognizer_ = sf::SpeechRecognizer::withLocale(ns::Locale::withIdentifier(u"zh_CN"_ns));
    recognizer_.setDelegate(self());
    offerButton();
    if (recognizer_.isAvailable()) {
        requestAuthorization();
    }
}

void Dictation::requestAuthorization() const {
    using Status = sf::SpeechRecognizerAuthorizationStatus;
    sf::SpeechRecognizer::requestAuthorization(sf::SpeechRecognizer::Authorization::from(
        [controller = objc::Strong(self())](Status status) mutable {
            onMainThread(std::move(controller), [status](FloatingViewController asking) {
                of(asking).tellOnce(status == Status::authorized);
            });
        }));
}

/// Its taps start recordings of the screen; a finger that rests on it records speech.
void Dictation::offerButton() {
    constexpr double seconds = 0.2;
    if (!std::exchange(isOffered_, true)) {
        addPress(self().send<"startRecordButton", ui::View>(), self(),
                 objc::selector<"handleLongGesturePressRecord:">(), seconds);
    }
}

void Dictation::tellOnce(bool isAuthorized) const {
    const auto defaults = ns::UserDefaults::standardUserDefaults();
    const ns::String told = u"wasPromptedForSpeechRecognition"_ns;
    if (defaults.get(told).as<ns::Number>().boolValue()) {
        return;
    }
    defaults.set(ns::Number::from(true), told);
    Alert(isAuthorized ? u"语音识别授权成功"_ns : u"语音识别授权失败"_ns)
        .action(u"OK"_ns)
        .present();
}

void Dictation::pressed(ui::LongPressGestureRecognizer press) {
    switch (press.state()) {
    case ui::GestureState::began:
        self().send<"initiateVoiceRecognition">();
        break;
    case ui::GestureState::ended:
        self().send<"terminateVoiceRecognition">();
        break;
    case ui::GestureState::cancelled:
        stopListening(); // nobody hears what would come
        break;
    default:
        break;
    }
}

void Dictation::listen() {
    if (!recognizer_ || !engine_) {
        return;
    }
    stopListening();
    task_.cancel();
    text_ = nullptr;
    startTask();
    if (!startEngine()) {
        stopListening();
        forgetTask();
    }
}

void Dictation::startTask() {
    constexpr bool reportsPartialResults = true;
    request_ = sf::SpeechAudioBufferRecognitionRequest::make();
    request_.setShouldReportPartialResults(reportsPartialResults);
    const auto handler = [kept = objc::Strong(self()), request = objc::Strong(request_)](
                             sf::SpeechRecognitionResult result, ns::Error error) {
        if (Dictation& dictation = of(kept); dictation.request_ == request) {
            dictation.understood(result, error);
        }
    };
    const auto task =
        recognizer_.recognitionTask(request_, sf::SpeechRecognizer::ResultHandler::from(handler));
    if (request_) { // not over already
        task_ = task;
    }
}

/// False when nothing can be heard.
bool Dictation::startEngine() const {
    constexpr unsigned int frames = 1024;
    const av::AudioInputNode microphone = engine_.inputNode();
    const av::AudioFormat format = microphone.outputFormat(microphoneBus);
    if (!request_ || !(format.sampleRate() > 0)) {
        return false;
    }
    microphone.removeTap(microphoneBus); // a second one would raise
    microphone.installTap(
        microphoneBus, frames, format,
        av::AudioInputNode::Tap::from(
            [request = objc::Strong(request_)](av::AudioPcmBuffer buffer, objc::Object) {
                request.append(buffer);
            }));
    engine_.prepare();
    return !engine_.start();
}

void Dictation::understood(sf::SpeechRecognitionResult result, ns::Error error) {
    if (result) {
        text_ = result.bestTranscription().formattedString();
    }
    if (error || result.isFinal()) {
        stopListening();
        forgetTask();
    }
}

void Dictation::stopListening() const {
    engine_.stop();
    engine_.inputNode().removeTap(microphoneBus);
    request_.endAudio();
}

void Dictation::forgetTask() {
    request_ = nullptr;
    task_ = nullptr;
}

void Dictation::finish() {
    stopListening();
    Alert(u"语音识别结果"_ns, text_).action(u"确认"_ns).present();
}

} // namespace wentra::toolbox
