// AVAudioInputNode: the microphone, where sound enters an engine.
#pragma once

#include "bindings/avfaudio/audio_format.hpp"
#include "bindings/avfaudio/audio_pcm_buffer.hpp"
#include "bindings/objc/block.hpp"

namespace av {

struct AudioInputNode : objc::Kind<AudioInputNode, "AVAudioInputNode"> {
    using Kind::Kind;
    /// Called on a thread of the engine; `when` is an AVAudioTime.
    using Tap = objc::Block<void(AudioPcmBuffer buffer, objc::Object when)>;

    [[nodiscard]] AudioFormat outputFormat(unsigned long bus) const {
        return send<"outputFormatForBus:", AudioFormat>(bus);
    }
    /// Hands what passes the bus to the tap, in buffers of about `frames`. Raises where a tap is
    /// installed already and for a format without samples.
    void installTap(unsigned long bus, unsigned int frames, AudioFormat format, Tap tap) const {
        send<"installTapOnBus:bufferSize:format:block:">(bus, frames, format, tap);
    }
    /// Nothing where there is none.
    void removeTap(unsigned long bus) const { send<"removeTapOnBus:">(bus); }
};

} // namespace av
