// AVAudioPCMBuffer.
#pragma once

#include "bindings/avfaudio/audio_pcm_buffer.hpp"
#include "desktop/avfaudio/audio_format.hpp"
#include "desktop/avfaudio/microphone.hpp"

template <>
struct objc::Encoding<float**> {
    static constexpr Literal value = "^^f";
};

namespace desktop {

/// Samples, with what is known of the speech in them.
class AudioPcmBuffer : public PlatformClass<AudioPcmBuffer, av::AudioPcmBuffer> {
public:
    static constexpr auto methods() {
        using Self = AudioPcmBuffer;
        return std::array{
            objc::method<"format", &Self::format_>(),
            objc::method<"frameLength", &Self::frameLength>(),
            objc::method<"frameCapacity", &Self::frameLength>(),
            objc::method<"floatChannelData", &Self::channels>(),
        };
    }

    static av::AudioPcmBuffer with(av::AudioFormat format, Microphone::Stretch stretch) {
        const auto buffer = Kind::make();
        of(buffer).format_ = format;
        of(buffer).stretch_ = std::move(stretch);
        return buffer;
    }

    /// All that has been said at the end of the buffer (UTF-8).
    [[nodiscard]] const std::string& said() const { return stretch_.said; }

private:
    [[nodiscard]] unsigned int frameLength() const {
        return static_cast<unsigned int>(stretch_.samples.size());
    }
    float** channels() {
        channel_ = stretch_.samples.data();
        return &channel_;
    }

    objc::Strong<av::AudioFormat> format_;
    Microphone::Stretch stretch_;
    float* channel_ = nullptr;
};

} // namespace desktop
