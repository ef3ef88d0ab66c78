// The voices of the phone, and which of ours speak for them.
#pragma once

#include <span>
#include <string_view>

namespace desktop::speech {

struct VoiceName {
    std::string_view language;    ///< "zh-TW", as the platform writes it
    std::string_view synthesiser; ///< what espeak-ng calls the language
};

/// The phone's own language.
inline constexpr std::string_view systemLanguage = "zh-CN";

std::span<const VoiceName> voices();

/// The voice of that language, or the first one of it when no region is named; null when there is
/// none. Case does not matter.
const VoiceName* voiceFor(std::string_view language);

} // namespace desktop::speech
