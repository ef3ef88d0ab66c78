// Hearing one buffer after the other.
#include "desktop/avfaudio/audio_engine.hpp"

#include "bindings/objc/pool.hpp"
#include "desktop/avfaudio/audio_input_node.hpp"
#include "desktop/avfaudio/audio_pcm_buffer.hpp"
#include "desktop/foundation/bundle.hpp"

namespace desktop {

using namespace ns::literals;

av::AudioInputNode AudioEngine::inputNode() {
    if (!inputNode_) {
        inputNode_ = av::AudioInputNode::make();
    }
    return inputNode_;
}

bool AudioEngine::start(id*) {
    foundation::requireUsageDescription(u"NSMicrophoneUsageDescription"_ns);
    if (!isRunning_) {
        isRunning_ = true;
        Microphone::shared().restart();
        schedule();
    }
    return true;
}

void AudioEngine::stop() {
    isRunning_ = false;
    Clock::shared().cancel(ticket_);
}

void AudioEngine::schedule() {
    const double seconds =
        AudioInputNode::of(inputNode()).bufferSize() / Microphone::shared().samplesPerSecond();
    ticket_ = Clock::shared().at(Clock::shared().now() + seconds, [this] {
        const objc::Pool pool;
        const objc::Strong kept(self()); // the tap may let go of it
        AudioInputNode::of(inputNode_).hear();
        if (isRunning_) {
            schedule();
        }
    });
}

void registerAudioEngineClasses() {
    AudioFormat::registerClass();
    AudioPcmBuffer::registerClass();
    AudioInputNode::registerClass();
    AudioEngine::registerClass();
}

} // namespace desktop
