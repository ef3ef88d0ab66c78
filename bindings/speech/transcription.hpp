// SFTranscription: one way to understand what was said.
#pragma once

#include "bindings/foundation/string.hpp"

namespace sf {

struct Transcription : objc::Kind<Transcription, "SFTranscription"> {
    using Kind::Kind;

    [[nodiscard]] ns::String formattedString() const {
        return send<"formattedString", ns::String>();
    }
};

} // namespace sf
