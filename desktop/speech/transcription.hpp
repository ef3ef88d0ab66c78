// SFTranscription: what was understood, as a text.
#pragma once

#include "bindings/speech/transcription.hpp"
#include "desktop/class.hpp"

namespace desktop {

class Transcription : public PlatformClass<Transcription, sf::Transcription> {
public:
    static constexpr auto methods() {
        return std::array{objc::method<"formattedString", &Transcription::text_>()};
    }

    static sf::Transcription with(ns::String text) {
        const auto transcription = Kind::make();
        of(transcription).text_ = text;
        return transcription;
    }

private:
    objc::Copied<ns::String> text_;
};

} // namespace desktop
