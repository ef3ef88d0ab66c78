// A text as sound.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace desktop::speech {

/// What is said and how, in the platform's measures; values beyond them count as the nearest.
struct Speech {
    std::string text;        ///< UTF-8
    std::string synthesiser; ///< the voice, as in `VoiceName`
    double rate = 0.5;       ///< 0 to 1
    double pitch = 1;        ///< 0.5 to 2
    double volume = 1;       ///< 0 to 1
};

/// One channel.
struct Sound {
    std::uint32_t samplesPerSecond = 22050;
    std::vector<std::int16_t> samples;

    /// The length in seconds.
    [[nodiscard]] double seconds() const {
        return static_cast<double>(samples.size()) / samplesPerSecond;
    }
};

/// How fast the synthesiser speaks for a rate of the platform's, in words a minute.
int wordsPerMinute(double rate);

/// Synthesises the text, ten minutes of it at most; the sound is empty when no voice is installed.
/// One thread at a time.
Sound soundOf(const Speech& speech);

/// The sound as the bytes of a WAV file.
std::string waveFile(const Sound& sound);

} // namespace desktop::speech
