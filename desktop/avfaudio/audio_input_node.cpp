// Taps, and what they must not be.
#include "desktop/avfaudio/audio_input_node.hpp"

#include "bindings/foundation/exception.hpp"
#include "desktop/avfaudio/audio_pcm_buffer.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

void require(bool condition, ns::String what) {
    if (!condition) {
        ns::Exception::with(u"com.apple.coreaudio.avfaudio"_ns, what).raise();
    }
}

} // namespace

av::AudioFormat AudioInputNode::outputFormat(unsigned long) const {
    return AudioFormat::withSampleRate(Microphone::shared().samplesPerSecond());
}

void AudioInputNode::installTap(unsigned long bus, unsigned int frames, av::AudioFormat format,
                                av::AudioInputNode::Tap tap) {
    constexpr unsigned int fewest = 64;
    constexpr unsigned int most = 65536;
    require(bus == 0, u"required condition is false: [AVAudioIONodeImpl.mm: bus == 0]"_ns);
    require(!tap_, u"required condition is false: nullptr == Tap()"_ns);
    require(!format || format.sampleRate() > 0,
            u"required condition is false: IsFormatSampleRateAndChannelCountValid(format)"_ns);
    bufferSize_ = std::clamp(frames, fewest, most);
    tap_ = tap;
}

void AudioInputNode::hear() {
    auto stretch = Microphone::shared().next(bufferSize_);
    if (const objc::Copied<av::AudioInputNode::Tap> tap = tap_; tap) { // it may remove itself
        const auto format = outputFormat(0);
        tap(AudioPcmBuffer::with(format, std::move(stretch)), nullptr);
    }
}

} // namespace desktop
