// SFSpeechAudioBufferRecognitionRequest: sound to be understood, as it comes.
#pragma once

#include "bindings/avfaudio/audio_pcm_buffer.hpp"

namespace sf {

struct SpeechAudioBufferRecognitionRequest
    : objc::Kind<SpeechAudioBufferRecognitionRequest, "SFSpeechAudioBufferRecognitionRequest"> {
    using Kind::Kind;

    void setShouldReportPartialResults(bool reports) const {
        send<"setShouldReportPartialResults:">(reports);
    }
    /// Any thread.
    void append(av::AudioPcmBuffer buffer) const { send<"appendAudioPCMBuffer:">(buffer); }
    /// There is no more sound.
    void endAudio() const { send<"endAudio">(); }
};

} // namespace sf
