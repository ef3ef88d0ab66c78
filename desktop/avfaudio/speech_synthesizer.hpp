// AVSpeechSynthesizer: a queue of utterances, spoken on the desktop's clock.
#pragma once

#include "bindings/avfaudio/speech_synthesizer.hpp"
#include "bindings/objc/weak.hpp"
#include "desktop/class.hpp"
#include "desktop/runtime/clock.hpp"

#include <deque>

namespace desktop {

/// Main thread. Speech has the length of its sound, which is written to a file on the device. It
/// stops and pauses at once, whichever boundary is asked for.
class SpeechSynthesizer : public PlatformClass<SpeechSynthesizer, av::SpeechSynthesizer> {
public:
    static constexpr auto methods() {
        using Self = SpeechSynthesizer;
        return std::array{
            objc::property<"delegate", &Self::delegate_>(),
            objc::method<"speakUtterance:", &Self::speakUtterance>(),
            objc::method<"stopSpeakingAtBoundary:", &Self::stopSpeakingAtBoundary>(),
            objc::method<"pauseSpeakingAtBoundary:", &Self::pauseSpeakingAtBoundary>(),
            objc::method<"continueSpeaking", &Self::continueSpeaking>(),
            objc::method<"isSpeaking", &Self::isSpeaking>(),
            objc::method<"isPaused", &Self::isPaused>(),
        };
    }

    ~SpeechSynthesizer();

private:
    /// What the first utterance is waiting for.
    enum class Phase { silent, delayed, sounding, resting };

    void speakUtterance(av::SpeechUtterance utterance);
    bool stopSpeakingAtBoundary(long boundary);
    bool pauseSpeakingAtBoundary(long boundary);
    bool continueSpeaking();
    [[nodiscard]] bool isSpeaking() const { return !queue_.empty(); }
    [[nodiscard]] bool isPaused() const { return paused_; }

    void enter(Phase phase, double seconds);
    void schedule();
    void proceed();
    void begin();
    void sound();
    void finish();
    template <objc::Literal Message>
    void tellDelegate(av::SpeechUtterance utterance) const;

    struct Entry {
        objc::Strong<av::SpeechUtterance> utterance;
        std::string file; ///< where its sound goes
    };
    objc::Weak<objc::Object> delegate_;
    std::deque<Entry> queue_;
    Phase phase_ = Phase::silent;
    bool paused_ = false;
    double due_ = 0;       ///< the clock's time at which the phase ends
    double remaining_ = 0; ///< seconds of the phase that are left, while paused
    Clock::Ticket ticket_ = 0;
};

/// Makes the classes of speech known. Once.
void registerSpeechClasses();

} // namespace desktop
