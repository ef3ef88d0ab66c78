// What is said to the phone: there is no microphone, so somebody has to tell.
#pragma once

#include "desktop/avfaudio/speech_sound.hpp"

#include <string>

namespace desktop {

/// A text as it is said, stretch by stretch. Plain values; main thread.
class Microphone {
public:
    /// A stretch of sound, and all of the text that has been said at its end (UTF-8).
    struct Stretch {
        std::vector<float> samples;
        std::string said;
    };

    static Microphone& shared();

    /// From now on, whoever begins to listen hears this text in Chinese; silence when it is empty.
    void say(const std::string& text);
    [[nodiscard]] const std::string& text() const { return text_; }
    /// Somebody begins to listen: the text is said from its beginning.
    void restart() { position_ = 0; }
    /// The next so many samples: silence when everything is said.
    [[nodiscard]] Stretch next(std::size_t count);
    [[nodiscard]] double samplesPerSecond() const { return sound_.samplesPerSecond; }

private:
    std::string text_;
    speech::Sound sound_;
    std::size_t position_ = 0;
};

/// The first part of the text, by the share of its characters; characters stay whole (UTF-8).
[[nodiscard]] std::string firstPart(const std::string& text, double share);

} // namespace desktop
