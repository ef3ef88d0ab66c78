// SFSpeechRecognitionTask.
#pragma once

#include "bindings/speech/speech_recognizer.hpp"
#include "desktop/class.hpp"

#include <string>

namespace desktop {

/// Tells its handler, in later turns of the main loop, until it is over.
class SpeechRecognitionTask
    : public PlatformClass<SpeechRecognitionTask, sf::SpeechRecognitionTask> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"cancel", &SpeechRecognitionTask::cancel>(),
            objc::method<"finish", &SpeechRecognitionTask::finish>(),
        };
    }

    /// It keeps the request, and lives until it is over.
    static sf::SpeechRecognitionTask with(sf::SpeechAudioBufferRecognitionRequest request,
                                          sf::SpeechRecognizer::ResultHandler handler);

    /// This is what was said so far (UTF-8).
    void understand(const std::string& text);
    /// This is all that was said; nothing is an error.
    void complete(const std::string& text);
    void fail(const std::string& why);

private:
    void cancel() { fail("Recognition request was canceled"); }
    void finish() { request_.endAudio(); }
    void end(sf::SpeechRecognitionResult result, ns::Error error);
    void tell(sf::SpeechRecognitionResult result, ns::Error error) const;

    objc::Strong<sf::SpeechAudioBufferRecognitionRequest> request_;
    objc::Copied<sf::SpeechRecognizer::ResultHandler> handler_;
    /// Itself, while it is under way: the host need not keep it.
    objc::Strong<sf::SpeechRecognitionTask> underWay_;
};

} // namespace desktop
