// AVAudioFormat.
#pragma once

#include "bindings/avfaudio/audio_format.hpp"
#include "desktop/class.hpp"

namespace desktop {

/// One channel of float samples.
class AudioFormat : public PlatformClass<AudioFormat, av::AudioFormat> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"sampleRate", &AudioFormat::sampleRate_>(),
            objc::method<"channelCount", &AudioFormat::channelCount>(),
        };
    }

    static av::AudioFormat withSampleRate(double rate) {
        const auto format = Kind::make();
        of(format).sampleRate_ = rate;
        return format;
    }

private:
    [[nodiscard]] unsigned int channelCount() const { return 1; }

    double sampleRate_ = 0;
};

} // namespace desktop
