// Taking utterances from the queue, phase by phase.
#include "desktop/avfaudio/speech_synthesizer.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/objc/pool.hpp"
#include "desktop/avfaudio/speech_utterance.hpp"
#include "desktop/deviceroot/deviceroot.hpp"
#include "desktop/runtime/event_log.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace desktop {
namespace {

using namespace ns::literals;

/// On the device; the hundredth file is followed by the first again.
std::string nextFile() {
    constexpr unsigned most = 100;
    static unsigned count = 0;
    return "/var/mobile/tmp/speech-" + std::to_string(count++ % most + 1) + ".wav";
}

/// Only where there is a device to write to; without the file, speech goes on.
void writeFile(const std::string& file, const speech::Sound& sound) {
    if (*deviceroot_get() == '\0') {
        return;
    }
    std::error_code ignored;
    std::filesystem::create_directories(std::filesystem::path(file).parent_path(), ignored);
    std::ofstream(file, std::ios::binary) << speech::waveFile(sound);
}

void recordSpeech(const SpeechUtterance& utterance, const std::string& file) {
    const auto fields = ns::MutableDictionary::make();
    fields.set(utterance.text() ? utterance.text() : u""_ns, u"text"_ns);
    fields.set(ns::String::fromUtf8(utterance.voiceName().language), u"language"_ns);
    fields.set(ns::Number::from(utterance.preUtteranceDelay()), u"delay"_ns);
    fields.set(ns::String::fromUtf8(file), u"file"_ns);
    EventLog::shared().record("speech", fields);
}

void recordStart(const std::string& file) {
    const auto fields = ns::MutableDictionary::make();
    fields.set(ns::String::fromUtf8(file), u"file"_ns);
    EventLog::shared().record("speechStarted", fields);
}

} // namespace

SpeechSynthesizer::~SpeechSynthesizer() { Clock::shared().cancel(ticket_); }

template <objc::Literal Message>
void SpeechSynthesizer::tellDelegate(av::SpeechUtterance utterance) const {
    if (const auto told = delegate_.strong(); told.respondsToSelector(objc::selector<Message>())) {
        told.template send<Message>(self(), utterance);
    }
}

void SpeechSynthesizer::speakUtterance(av::SpeechUtterance utterance) {
    if (!utterance || std::ranges::any_of(queue_, [utterance](const Entry& entry) {
            return entry.utterance == utterance;
        })) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"An AVSpeechUtterance shall not be nil or enqueued twice"_ns)
            .raise();
    }
    queue_.push_back({utterance, nextFile()});
    recordSpeech(SpeechUtterance::of(utterance), queue_.back().file);
    if (phase_ == Phase::silent) {
        begin();
    }
}

void SpeechSynthesizer::begin() {
    if (queue_.empty()) {
        phase_ = Phase::silent;
    } else {
        enter(Phase::delayed, SpeechUtterance::of(queue_.front().utterance).preUtteranceDelay());
    }
}

void SpeechSynthesizer::enter(Phase phase, double seconds) {
    phase_ = phase;
    remaining_ = seconds > 0 ? seconds : 0; // whatever the host says
    if (!paused_) {
        schedule();
    }
}

void SpeechSynthesizer::schedule() {
    due_ = Clock::shared().now() + remaining_;
    ticket_ = Clock::shared().at(due_, [this] {
        const objc::Pool pool;
        const objc::Strong kept(self()); // the delegate may let go of it
        proceed();
    });
}

void SpeechSynthesizer::proceed() {
    switch (phase_) {
    case Phase::silent:
        break;
    case Phase::delayed:
        sound();
        break;
    case Phase::sounding:
        enter(Phase::resting, SpeechUtterance::of(queue_.front().utterance).postUtteranceDelay());
        break;
    case Phase::resting:
        finish();
        break;
    }
}

void SpeechSynthesizer::sound() {
    const Entry entry = queue_.front();
    const speech::Sound sound = speech::soundOf(SpeechUtterance::of(entry.utterance).speech());
    writeFile(entry.file, sound);
    recordStart(entry.file);
    enter(Phase::sounding, sound.seconds());
    tellDelegate<"speechSynthesizer:didStartSpeechUtterance:">(entry.utterance);
}

void SpeechSynthesizer::finish() {
    const Entry entry = std::move(queue_.front());
    queue_.pop_front();
    begin();
    tellDelegate<"speechSynthesizer:didFinishSpeechUtterance:">(entry.utterance);
}

bool SpeechSynthesizer::stopSpeakingAtBoundary(long) {
    if (queue_.empty()) {
        return false;
    }
    Clock::shared().cancel(ticket_);
    const objc::Strong kept(self()); // the delegate may let go of it
    const auto cancelled = std::exchange(queue_, {});
    phase_ = Phase::silent;
    paused_ = false;
    EventLog::shared().record("speechStopped", ns::MutableDictionary::make());
    for (const Entry& entry : cancelled) {
        tellDelegate<"speechSynthesizer:didCancelSpeechUtterance:">(entry.utterance);
    }
    return true;
}

bool SpeechSynthesizer::pauseSpeakingAtBoundary(long) {
    if (queue_.empty() || paused_) {
        return false;
    }
    Clock::shared().cancel(ticket_);
    remaining_ = due_ - Clock::shared().now();
    paused_ = true;
    tellDelegate<"speechSynthesizer:didPauseSpeechUtterance:">(
        objc::Strong(queue_.front().utterance));
    return true;
}

bool SpeechSynthesizer::continueSpeaking() {
    if (!paused_) {
        return false;
    }
    paused_ = false;
    schedule();
    tellDelegate<"speechSynthesizer:didContinueSpeechUtterance:">(
        objc::Strong(queue_.front().utterance));
    return true;
}

void registerSpeechClasses() {
    SpeechSynthesisVoice::registerClass();
    SpeechUtterance::registerClass();
    SpeechSynthesizer::registerClass();
}

} // namespace desktop
