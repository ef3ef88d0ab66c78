// Saying a text, and telling how far it has come.
#include "desktop/avfaudio/microphone.hpp"

#include "desktop/avfaudio/speech_voices.hpp"
#include "desktop/foundation/text.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

std::string firstPart(const std::string& text, double share) {
    const auto characters = std::ranges::count(text, false, &continuesCharacter);
    auto wanted = std::lround(std::floor(static_cast<double>(characters) * share));
    const auto end = std::ranges::find_if(
        text, [&wanted](char byte) { return !continuesCharacter(byte) && wanted-- <= 0; });
    return {text.begin(), end};
}

Microphone& Microphone::shared() {
    static Microphone microphone;
    return microphone;
}

void Microphone::say(const std::string& text) {
    text_ = text;
    sound_ = {};
    position_ = 0;
    if (!text.empty()) {
        const auto* voice = speech::voiceFor(speech::systemLanguage);
        sound_ = speech::soundOf({.text = text, .synthesiser = std::string(voice->synthesiser)});
    }
}

Microphone::Stretch Microphone::next(std::size_t count) {
    constexpr float loudest = 32768;
    Stretch stretch{std::vector<float>(count), {}};
    const std::size_t left = sound_.samples.size() - position_;
    for (std::size_t i = 0; i < std::min(count, left); ++i) {
        stretch.samples[i] = static_cast<float>(sound_.samples[position_ + i]) / loudest;
    }
    position_ += std::min(count, left);
    const double total = static_cast<double>(sound_.samples.size());
    stretch.said = firstPart(text_, total > 0 ? static_cast<double>(position_) / total : 1);
    return stretch;
}

} // namespace desktop
