// AVAudioEngine: moves sound from the microphone to its taps, on the desktop's clock.
#pragma once

#include "bindings/avfaudio/audio_engine.hpp"
#include "desktop/class.hpp"
#include "desktop/foundation/error_encoding.hpp"
#include "desktop/runtime/clock.hpp"

namespace desktop {

/// Main thread.
class AudioEngine : public PlatformClass<AudioEngine, av::AudioEngine> {
public:
    static constexpr auto methods() {
        using Self = AudioEngine;
        return std::array{
            objc::method<"inputNode", &Self::inputNode>(),
            objc::method<"prepare", &Self::prepare>(),
            objc::method<"startAndReturnError:", &Self::start>(),
            objc::method<"stop", &Self::stop>(),
            objc::method<"pause", &Self::stop>(),
            objc::method<"isRunning", &Self::isRunning>(),
        };
    }

    ~AudioEngine() { stop(); }

private:
    av::AudioInputNode inputNode();
    void prepare() {}
    bool start(id* error);
    void stop();
    [[nodiscard]] bool isRunning() const { return isRunning_; }
    void schedule();

    objc::Strong<av::AudioInputNode> inputNode_;
    bool isRunning_ = false;
    Clock::Ticket ticket_ = 0;
};

/// Makes the engine's classes known. Once.
void registerAudioEngineClasses();

} // namespace desktop
