// Results, errors and their events.
#include "desktop/speech/speech_recognition_task.hpp"

#include "bindings/foundation/number.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/main_queue.hpp"
#include "desktop/speech/speech_recognition_result.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

void recordRecognition(ns::String text, bool isFinal) {
    const auto fields = ns::MutableDictionary::make();
    fields.set(text, u"text"_ns);
    fields.set(ns::Number::from(isFinal), u"final"_ns);
    EventLog::shared().record("recognition", fields);
}

ns::Error errorOf(const std::string& why) {
    constexpr long noSpeech = 1110;
    return ns::Error::withDescription(u"kAFAssistantErrorDomain"_ns, noSpeech,
                                      ns::String::fromUtf8(why));
}

} // namespace

sf::SpeechRecognitionTask
SpeechRecognitionTask::with(sf::SpeechAudioBufferRecognitionRequest request,
                            sf::SpeechRecognizer::ResultHandler handler) {
    const auto task = Kind::make();
    SpeechRecognitionTask& peer = of(task);
    peer.request_ = request;
    peer.handler_ = handler;
    peer.underWay_ = task;
    return task;
}

void SpeechRecognitionTask::understand(const std::string& text) {
    if (underWay_ && !text.empty()) {
        const auto said = ns::String::fromUtf8(text);
        recordRecognition(said, false);
        tell(SpeechRecognitionResult::with(said, false), nullptr);
    }
}

void SpeechRecognitionTask::complete(const std::string& text) {
    if (text.empty()) {
        fail("No speech detected");
    } else if (underWay_) {
        const auto said = ns::String::fromUtf8(text);
        recordRecognition(said, true);
        end(SpeechRecognitionResult::with(said, true), nullptr);
    }
}

void SpeechRecognitionTask::fail(const std::string& why) {
    if (underWay_) {
        end(nullptr, errorOf(why));
    }
}

void SpeechRecognitionTask::end(sf::SpeechRecognitionResult result, ns::Error error) {
    tell(result, error);
    const objc::Strong<sf::SpeechRecognitionTask> kept = underWay_;
    underWay_ = nullptr;
    handler_ = nullptr;
}

void SpeechRecognitionTask::tell(sf::SpeechRecognitionResult result, ns::Error error) const {
    if (handler_) {
        MainQueue::shared().add([handler = handler_, result = objc::Strong(result),
                                 error = objc::Strong(error)] { handler(result, error); });
    }
}

} // namespace desktop
