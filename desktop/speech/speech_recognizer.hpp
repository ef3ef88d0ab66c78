// SFSpeechRecognizer: understands what the microphone was told that is said.
#pragma once

#include "bindings/objc/weak.hpp"
#include "bindings/speech/speech_recognizer.hpp"
#include "desktop/class.hpp"

namespace desktop {

/// It hears words, not sounds: the buffers carry what is said in them. Main thread.
class SpeechRecognizer : public PlatformClass<SpeechRecognizer, sf::SpeechRecognizer> {
public:
    static constexpr auto methods() {
        using Self = SpeechRecognizer;
        return std::array{
            objc::classMethod<"requestAuthorization:", &Self::requestAuthorization>(),
            objc::classMethod<"authorizationStatus", &Self::authorizationStatus>(),
            objc::method<"initWithLocale:", &Self::initWithLocale>(),
            objc::method<"locale", &Self::locale_>(),
            objc::method<"isAvailable", &Self::isAvailable>(),
            objc::property<"delegate", &Self::delegate_>(),
            objc::method<"recognitionTaskWithRequest:resultHandler:", &Self::recognitionTask>(),
        };
    }

    SpeechRecognizer();
    ~SpeechRecognizer();

    void tellAvailability() const;

private:
    static void requestAuthorization(Class, sf::SpeechRecognizer::Authorization told);
    static sf::SpeechRecognizerAuthorizationStatus authorizationStatus(Class);
    sf::SpeechRecognizer initWithLocale(ns::Locale locale);
    [[nodiscard]] bool isAvailable() const;
    sf::SpeechRecognitionTask recognitionTask(sf::SpeechAudioBufferRecognitionRequest request,
                                              sf::SpeechRecognizer::ResultHandler handler);

    objc::Strong<ns::Locale> locale_;
    objc::Weak<objc::Object> delegate_;
};

/// Makes the classes of speech recognition known. Once.
void registerSpeechRecognitionClasses();

} // namespace desktop
