// From buffers to words.
#include "desktop/speech/speech_audio_buffer_recognition_request.hpp"

#include "desktop/avfaudio/audio_pcm_buffer.hpp"
#include "desktop/speech/speech_recognition_task.hpp"

namespace desktop {

void SpeechAudioBufferRecognitionRequest::append(av::AudioPcmBuffer buffer) {
    if (!buffer || hasEnded_) {
        return;
    }
    const std::string& said = AudioPcmBuffer::of(buffer).said();
    const bool isNews = said != said_;
    said_ = said;
    if (const auto task = task_.strong(); task && isNews && reportsPartialResults_) {
        SpeechRecognitionTask::of(task).understand(said_);
    }
}

void SpeechAudioBufferRecognitionRequest::endAudio() {
    if (std::exchange(hasEnded_, true)) {
        return;
    }
    if (const auto task = task_.strong(); task) {
        SpeechRecognitionTask::of(task).complete(said_);
    }
}

void SpeechAudioBufferRecognitionRequest::setTask(sf::SpeechRecognitionTask task) {
    task_ = task;
    if (hasEnded_) {
        SpeechRecognitionTask::of(task).complete(said_);
    } else if (!said_.empty() && reportsPartialResults_) {
        SpeechRecognitionTask::of(task).understand(said_);
    }
}

} // namespace desktop
