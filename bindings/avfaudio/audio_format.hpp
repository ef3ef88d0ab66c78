// AVAudioFormat.
#pragma once

#include "bindings/objc/kind.hpp"

namespace av {

struct AudioFormat : objc::Kind<AudioFormat, "AVAudioFormat"> {
    using Kind::Kind;

    /// A second; 0 where there is no sound to be had.
    [[nodiscard]] double sampleRate() const { return send<"sampleRate", double>(); }
};

} // namespace av
