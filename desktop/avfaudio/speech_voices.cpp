// The table of voices.
#include "desktop/avfaudio/speech_voices.hpp"

#include <algorithm>
#include <array>
#include <cctype>

namespace desktop::speech {
namespace {

constexpr std::array table{
    VoiceName{"zh-CN", "cmn"},    VoiceName{"zh-HK", "yue"},   VoiceName{"zh-TW", "cmn"},
    VoiceName{"en-US", "en-us"},  VoiceName{"en-GB", "en-gb"}, VoiceName{"en-AU", "en-gb"},
    VoiceName{"en-IE", "en-gb"},  VoiceName{"en-IN", "en-gb"}, VoiceName{"en-ZA", "en-gb"},
    VoiceName{"ar-SA", "ar"},     VoiceName{"cs-CZ", "cs"},    VoiceName{"da-DK", "da"},
    VoiceName{"de-DE", "de"},     VoiceName{"el-GR", "el"},    VoiceName{"es-ES", "es"},
    VoiceName{"es-MX", "es-419"}, VoiceName{"fi-FI", "fi"},    VoiceName{"fr-FR", "fr-fr"},
    VoiceName{"fr-CA", "fr-fr"},  VoiceName{"he-IL", "he"},    VoiceName{"hi-IN", "hi"},
    VoiceName{"hu-HU", "hu"},     VoiceName{"id-ID", "id"},    VoiceName{"it-IT", "it"},
    VoiceName{"ja-JP", "ja"},     VoiceName{"ko-KR", "ko"},    VoiceName{"nl-NL", "nl"},
    VoiceName{"nl-BE", "nl"},     VoiceName{"no-NO", "nb"},    VoiceName{"pl-PL", "pl"},
    VoiceName{"pt-BR", "pt-br"},  VoiceName{"pt-PT", "pt"},    VoiceName{"ro-RO", "ro"},
    VoiceName{"ru-RU", "ru"},     VoiceName{"sk-SK", "sk"},    VoiceName{"sv-SE", "sv"},
    VoiceName{"th-TH", "th"},     VoiceName{"tr-TR", "tr"},
};

bool same(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, [](unsigned char a, unsigned char b) {
        return std::tolower(a) == std::tolower(b);
    });
}

} // namespace

std::span<const VoiceName> voices() { return table; }

const VoiceName* voiceFor(std::string_view language) {
    const bool hasRegion = language.find('-') != std::string_view::npos;
    const auto* const found = std::ranges::find_if(table, [&](const VoiceName& voice) {
        return same(language, hasRegion ? voice.language
                                        : voice.language.substr(0, voice.language.find('-')));
    });
    return found == table.end() ? nullptr : &*found;
}

} // namespace desktop::speech
