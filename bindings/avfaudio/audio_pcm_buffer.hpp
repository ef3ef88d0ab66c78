// AVAudioPCMBuffer: a stretch of sound.
#pragma once

#include "bindings/objc/kind.hpp"

namespace av {

struct AudioPcmBuffer : objc::Kind<AudioPcmBuffer, "AVAudioPCMBuffer"> {
    using Kind::Kind;
};

} // namespace av
