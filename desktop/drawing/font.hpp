// A font as a value: the family, size, weight and slant that text is set in.
#pragma once

#include <string>

namespace desktop {

/// Describes a font; it owns nothing of the font machinery, so copying and comparing are cheap.
struct Font {
    /// The family as the phone names it ("Helvetica Neue") or as installed here ("DejaVu Sans");
    /// UTF-8. Empty is the system font; `monospacedFamily` is the system's monospaced one.
    /// A family that is not known is drawn in the system font.
    std::string family = {};
    /// Points. Sizes that are zero, negative or NaN draw nothing and take no room; sizes above
    /// `largestSize` count as that.
    double size = 17;
    /// 100 (thin) to 900 (black); 400 is regular, 500 medium, 600 semibold, 700 bold.
    int weight = 400;
    bool italic = false;
    /// Digits of one width, so that changing numbers keep their place.
    bool monospacedDigits = false;

    static constexpr double largestSize = 2000;
    static constexpr const char* monospacedFamily = ".monospaced";

    bool operator==(const Font&) const = default;
};

/// Vertical measures in points. As on the phone, `descender` is negative and
/// `lineHeight` = `ascender` - `descender`.
struct FontMetrics {
    double ascender = 0;
    double descender = 0;
    double lineHeight = 0;
    double capHeight = 0;
    double xHeight = 0;
};

/// The measures of the font's own (Latin) face: text in other scripts is set on the same lines.
/// All zero when the size draws nothing. Any thread.
FontMetrics metrics(const Font& font);

} // namespace desktop
