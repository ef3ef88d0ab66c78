// SFSpeechRecognitionTask: a recognition under way.
#pragma once

#include "bindings/objc/kind.hpp"

namespace sf {

struct SpeechRecognitionTask : objc::Kind<SpeechRecognitionTask, "SFSpeechRecognitionTask"> {
    using Kind::Kind;

    void cancel() const { send<"cancel">(); }
};

} // namespace sf
