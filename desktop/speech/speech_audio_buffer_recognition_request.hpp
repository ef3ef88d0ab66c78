// SFSpeechAudioBufferRecognitionRequest.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/speech/speech_audio_buffer_recognition_request.hpp"
#include "bindings/speech/speech_recognition_task.hpp"
#include "desktop/class.hpp"

#include <string>

namespace desktop {

/// Gathers what is said in the buffers. Main thread.
class SpeechAudioBufferRecognitionRequest
    : public PlatformClass<SpeechAudioBufferRecognitionRequest,
                           sf::SpeechAudioBufferRecognitionRequest> {
public:
    static constexpr auto methods() {
        using Self = SpeechAudioBufferRecognitionRequest;
        return std::array{
            objc::method<"shouldReportPartialResults", &Self::reportsPartialResults>(),
            objc::method<"setShouldReportPartialResults:", &Self::setReportsPartialResults>(),
            objc::method<"appendAudioPCMBuffer:", &Self::append>(),
            objc::method<"endAudio", &Self::endAudio>(),
        };
    }

    /// Who wants to know; it hears at once what was said before.
    void setTask(sf::SpeechRecognitionTask task);

private:
    [[nodiscard]] bool reportsPartialResults() const { return reportsPartialResults_; }
    void setReportsPartialResults(bool reports) { reportsPartialResults_ = reports; }
    void append(av::AudioPcmBuffer buffer);
    void endAudio();

    objc::Weak<sf::SpeechRecognitionTask> task_;
    std::string said_;
    bool reportsPartialResults_ = true;
    bool hasEnded_ = false;
};

} // namespace desktop
