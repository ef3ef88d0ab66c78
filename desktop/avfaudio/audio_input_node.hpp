// AVAudioInputNode: hands what the phone hears to a tap.
#pragma once

#include "bindings/avfaudio/audio_input_node.hpp"
#include "desktop/class.hpp"

namespace desktop {

/// Main thread. It has one bus, of number 0.
class AudioInputNode : public PlatformClass<AudioInputNode, av::AudioInputNode> {
public:
    static constexpr auto methods() {
        using Self = AudioInputNode;
        return std::array{
            objc::method<"outputFormatForBus:", &Self::outputFormat>(),
            objc::method<"inputFormatForBus:", &Self::outputFormat>(),
            objc::method<"installTapOnBus:bufferSize:format:block:", &Self::installTap>(),
            objc::method<"removeTapOnBus:", &Self::removeTap>(),
        };
    }

    /// Frames that the tap gets at once.
    [[nodiscard]] unsigned int bufferSize() const { return bufferSize_; }
    /// Hears the next buffer.
    void hear();

private:
    [[nodiscard]] av::AudioFormat outputFormat(unsigned long bus) const;
    void installTap(unsigned long bus, unsigned int frames, av::AudioFormat format,
                    av::AudioInputNode::Tap tap);
    void removeTap(unsigned long) { tap_ = nullptr; }

    static constexpr unsigned int usualBufferSize = 1024;
    unsigned int bufferSize_ = usualBufferSize;
    objc::Copied<av::AudioInputNode::Tap> tap_;
};

} // namespace desktop
