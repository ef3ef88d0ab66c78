// Synthesising with espeak-ng, and writing sound down.
#include "desktop/avfaudio/speech_sound.hpp"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <cmath>

namespace desktop::speech {
namespace {

constexpr double longestSeconds = 600;

/// Prepares the synthesiser at the first call; its samples a second, or less than 1 when it cannot
/// speak.
int samplesPerSecond() {
    static const int rate =
        espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
    return rate;
}

/// 1 when there is enough.
int collect(short* samples, int count, espeak_EVENT* events) {
    auto& sound = *static_cast<Sound*>(events->user_data);
    if (samples != nullptr) {
        sound.samples.insert(sound.samples.end(), samples, samples + count);
    }
    return sound.seconds() >= longestSeconds ? 1 : 0;
}

/// The nearest value within the limits; the lower one for what is no number.
double within(double value, double least, double most) {
    return value > least ? std::min(value, most) : least;
}

int rounded(double value) { return static_cast<int>(std::lround(value)); }

/// Little-endian, whatever the machine.
template <class Integer>
void append(std::string& bytes, Integer value) {
    for (std::size_t i = 0; i < sizeof value; ++i) {
        constexpr unsigned bitsInByte = 8;
        bytes += static_cast<char>(static_cast<std::uint64_t>(value) >> (i * bitsInByte) & 0xFFU);
    }
}

} // namespace

int wordsPerMinute(double rate) {
    constexpr double usual = 0.5;
    const double share = within(rate, 0, 1) / usual;
    return rounded(
        share <= 1 ? espeakRATE_MINIMUM + share * (espeakRATE_NORMAL - espeakRATE_MINIMUM)
                   : espeakRATE_NORMAL + (share - 1) * (espeakRATE_MAXIMUM - espeakRATE_NORMAL));
}

Sound soundOf(const Speech& speech) {
    Sound sound;
    if (samplesPerSecond() < 1) {
        return sound;
    }
    sound.samplesPerSecond = static_cast<std::uint32_t>(samplesPerSecond());
    espeak_SetSynthCallback(&collect);
    espeak_SetVoiceByName(speech.synthesiser.c_str());
    constexpr double usualPitch = 50;
    constexpr double usualVolume = 100;
    espeak_SetParameter(espeakRATE, wordsPerMinute(speech.rate), 0);
    espeak_SetParameter(espeakPITCH, rounded(within(speech.pitch, 0.5, 2) * usualPitch), 0);
    espeak_SetParameter(espeakVOLUME, rounded(within(speech.volume, 0, 1) * usualVolume), 0);
    espeak_Synth(speech.text.c_str(), speech.text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8,
                 nullptr, &sound);
    return sound;
}

std::string waveFile(const Sound& sound) {
    constexpr std::uint16_t plainSamples = 1;
    constexpr std::uint16_t channels = 1;
    constexpr std::uint16_t bits = 16;
    constexpr std::uint16_t bytesInSample = sizeof(std::int16_t);
    constexpr std::uint32_t formatSize = 16;
    constexpr std::uint32_t headSize = 36;
    const auto size = static_cast<std::uint32_t>(sound.samples.size() * bytesInSample);
    std::string bytes = "RIFF";
    append(bytes, headSize + size);
    bytes += "WAVEfmt ";
    append(bytes, formatSize);
    append(bytes, plainSamples);
    append(bytes, channels);
    append(bytes, sound.samplesPerSecond);
    append(bytes, sound.samplesPerSecond * bytesInSample);
    append(bytes, bytesInSample);
    append(bytes, bits);
    bytes += "data";
    append(bytes, size);
    for (const std::int16_t sample : sound.samples) {
        append(bytes, sample);
    }
    return bytes;
}

} // namespace desktop::speech
