// From the phone's names of symbols to those of the icon set.
#include "desktop/drawing/symbol.hpp"

#include <algorithm>
#include <array>

namespace desktop {
namespace {

struct Substitute {
    std::string_view name;
    std::string_view glyph;
};

/// Symbols that the set lacks, with the glyph that is nearest in meaning and shape.
constexpr std::array substitutes{
    Substitute{"arrow.triangle.2.circlepath", "arrow_2_circlepath"},
    Substitute{"gearshape", "gear_alt"},
    Substitute{"gearshape.fill", "gear_alt_fill"},
    Substitute{"line.3.horizontal", "line_horizontal_3"},
    Substitute{"minus.magnifyingglass", "zoom_out"},
    Substitute{"network", "globe"},
    Substitute{"play.rectangle", "play_rectangle"},
    Substitute{"plus.magnifyingglass", "zoom_in"},
    Substitute{"safari", "compass"},
};

/// Words that the set spells in its own way.
constexpr std::array words{
    Substitute{"and", ""},
    Substitute{"backward", "left"},
    Substitute{"forward", "right"},
    Substitute{"magnifyingglass", "search"},
    Substitute{"questionmark", "question"},
};

std::string joined(std::string_view name, bool translate) {
    std::string glyph;
    while (!name.empty()) {
        const std::size_t end = std::min(name.find('.'), name.size());
        std::string_view word = name.substr(0, end);
        const auto* own = std::ranges::find(words, word, &Substitute::name);
        if (translate && own != words.end()) {
            word = own->glyph;
        }
        glyph += glyph.empty() || word.empty() ? "" : "_";
        glyph += word;
        name.remove_prefix(std::min(end + 1, name.size()));
    }
    return glyph;
}

} // namespace

std::vector<std::string> glyphNames(std::string_view name) {
    if (name.find('_') != std::string_view::npos) {
        return {}; // a name of the set, not of the phone
    }
    const auto* substitute = std::ranges::find(substitutes, name, &Substitute::name);
    if (substitute != substitutes.end()) {
        return {std::string(substitute->glyph)};
    }
    return {joined(name, false), joined(name, true)};
}

} // namespace desktop
