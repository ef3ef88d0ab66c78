// AVAudioEngine.
#pragma once

#include "bindings/avfaudio/audio_input_node.hpp"
#include "bindings/foundation/result.hpp"

namespace av {

struct AudioEngine : objc::Kind<AudioEngine, "AVAudioEngine"> {
    using Kind::Kind;

    [[nodiscard]] AudioInputNode inputNode() const { return send<"inputNode", AudioInputNode>(); }
    /// Nil unless it is running.
    [[nodiscard]] ns::Error start() const {
        const ns::ErrorPointer error;
        return error.unless(send<"startAndReturnError:", bool>(error.out()));
    }
    void prepare() const { send<"prepare">(); }
    void stop() const { send<"stop">(); }
};

} // namespace av
