// Being allowed to listen, being available, and beginning tasks.
#include "desktop/speech/speech_recognizer.hpp"

#include "desktop/foundation/bundle.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/speech/recognition_settings.hpp"
#include "desktop/speech/speech_audio_buffer_recognition_request.hpp"
#include "desktop/speech/speech_recognition_result.hpp"
#include "desktop/speech/speech_recognition_task.hpp"
#include "desktop/uikit/delegate_messages.hpp"

#include <vector>

namespace desktop {
namespace {

using namespace ns::literals;

bool wasAsked = false;

RecognitionSettings& settings() {
    static RecognitionSettings present;
    return present;
}

std::vector<SpeechRecognizer*>& recognizers() {
    static auto* all = new std::vector<SpeechRecognizer*>; // objects may die when the process ends
    return *all;
}

} // namespace

const RecognitionSettings& RecognitionSettings::shared() { return settings(); }

void RecognitionSettings::apply() const {
    const bool wasAvailable = std::exchange(settings(), *this).available;
    if (wasAvailable != available) {
        for (const SpeechRecognizer* recognizer : std::vector(recognizers())) {
            recognizer->tellAvailability();
        }
    }
}

SpeechRecognizer::SpeechRecognizer() { recognizers().push_back(this); }

SpeechRecognizer::~SpeechRecognizer() { std::erase(recognizers(), this); }

void SpeechRecognizer::tellAvailability() const {
    tell<"speechRecognizer:availabilityDidChange:">(delegate_.strong(), self(), isAvailable());
}

sf::SpeechRecognizerAuthorizationStatus SpeechRecognizer::authorizationStatus(Class) {
    using Status = sf::SpeechRecognizerAuthorizationStatus;
    if (!wasAsked) {
        return Status::notDetermined;
    }
    return settings().authorized ? Status::authorized : Status::denied;
}

void SpeechRecognizer::requestAuthorization(Class cls, sf::SpeechRecognizer::Authorization told) {
    foundation::requireUsageDescription(u"NSSpeechRecognitionUsageDescription"_ns);
    wasAsked = true;
    MainQueue::shared().add([told = objc::Copied(told), cls] { told(authorizationStatus(cls)); });
}

sf::SpeechRecognizer SpeechRecognizer::initWithLocale(ns::Locale locale) {
    super<"init", objc::Object>();
    locale_ = locale;
    return self();
}

bool SpeechRecognizer::isAvailable() const { return settings().available; }

sf::SpeechRecognitionTask
SpeechRecognizer::recognitionTask(sf::SpeechAudioBufferRecognitionRequest request,
                                  sf::SpeechRecognizer::ResultHandler handler) {
    const auto task = SpeechRecognitionTask::with(request, handler);
    using Status = sf::SpeechRecognizerAuthorizationStatus;
    if (authorizationStatus(nullptr) != Status::authorized) {
        SpeechRecognitionTask::of(task).fail("User denied access to speech recognition");
    } else if (!settings().available) {
        SpeechRecognitionTask::of(task).fail("Speech recognition is not available");
    } else if (!settings().error.empty()) {
        SpeechRecognitionTask::of(task).fail(settings().error);
    } else {
        SpeechAudioBufferRecognitionRequest::of(request).setTask(task);
    }
    return task;
}

void registerSpeechRecognitionClasses() {
    Transcription::registerClass();
    SpeechRecognitionResult::registerClass();
    SpeechAudioBufferRecognitionRequest::registerClass();
    SpeechRecognitionTask::registerClass();
    SpeechRecognizer::registerClass();
}

} // namespace desktop
