// Lists the phone's well-known fonts by their names there.
#include "desktop/drawing/phone_fonts.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr PhoneFace alNile[] = {{"AlNile", "", 400, false}, {"AlNile-Bold", "Bold", 700, false}};
constexpr PhoneFace appleColorEmoji[] = {{"AppleColorEmoji", "", 400, false}};
constexpr PhoneFace arial[] = {
    {"ArialMT", "", 400, false},
    {"Arial-BoldMT", "Bold", 700, false},
    {"Arial-ItalicMT", "Italic", 400, true},
    {"Arial-BoldItalicMT", "Bold Italic", 700, true},
};
constexpr PhoneFace avenirNext[] = {
    {"AvenirNext-UltraLight", "Ultra Light", 200, false},
    {"AvenirNext-Regular", "Regular", 400, false},
    {"AvenirNext-Medium", "Medium", 500, false},
    {"AvenirNext-DemiBold", "Demi Bold", 600, false},
    {"AvenirNext-Bold", "Bold", 700, false},
    {"AvenirNext-Heavy", "Heavy", 800, false},
    {"AvenirNext-Italic", "Italic", 400, true},
    {"AvenirNext-BoldItalic", "Bold Italic", 700, true},
};
constexpr PhoneFace courier[] = {
    {"Courier", "", 400, false},
    {"Courier-Bold", "Bold", 700, false},
    {"Courier-Oblique", "Oblique", 400, true},
    {"Courier-BoldOblique", "Bold Oblique", 700, true},
};
constexpr PhoneFace courierNew[] = {
    {"CourierNewPSMT", "", 400, false},
    {"CourierNewPS-BoldMT", "Bold", 700, false},
    {"CourierNewPS-ItalicMT", "Italic", 400, true},
    {"CourierNewPS-BoldItalicMT", "Bold Italic", 700, true},
};
constexpr PhoneFace georgia[] = {
    {"Georgia", "", 400, false},
    {"Georgia-Bold", "Bold", 700, false},
    {"Georgia-Italic", "Italic", 400, true},
    {"Georgia-BoldItalic", "Bold Italic", 700, true},
};
constexpr PhoneFace helvetica[] = {
    {"Helvetica-Light", "Light", 300, false},
    {"Helvetica", "", 400, false},
    {"Helvetica-Bold", "Bold", 700, false},
    {"Helvetica-LightOblique", "Light Oblique", 300, true},
    {"Helvetica-Oblique", "Oblique", 400, true},
    {"Helvetica-BoldOblique", "Bold Oblique", 700, true},
};
constexpr PhoneFace helveticaNeue[] = {
    {"HelveticaNeue-UltraLight", "UltraLight", 100, false},
    {"HelveticaNeue-Thin", "Thin", 200, false},
    {"HelveticaNeue-Light", "Light", 300, false},
    {"HelveticaNeue", "", 400, false},
    {"HelveticaNeue-Medium", "Medium", 500, false},
    {"HelveticaNeue-Bold", "Bold", 700, false},
    {"HelveticaNeue-LightItalic", "Light Italic", 300, true},
    {"HelveticaNeue-Italic", "Italic", 400, true},
    {"HelveticaNeue-MediumItalic", "Medium Italic", 500, true},
    {"HelveticaNeue-BoldItalic", "Bold Italic", 700, true},
};
constexpr PhoneFace menlo[] = {
    {"Menlo-Regular", "Regular", 400, false},
    {"Menlo-Bold", "Bold", 700, false},
    {"Menlo-Italic", "Italic", 400, true},
    {"Menlo-BoldItalic", "Bold Italic", 700, true},
};
constexpr PhoneFace pingFang[] = {
    {"PingFangSC-Ultralight", "Ultralight", 100, false},
    {"PingFangSC-Thin", "Thin", 200, false},
    {"PingFangSC-Light", "Light", 300, false},
    {"PingFangSC-Regular", "Regular", 400, false},
    {"PingFangSC-Medium", "Medium", 500, false},
    {"PingFangSC-Semibold", "Semibold", 600, false},
};
constexpr PhoneFace timesNewRoman[] = {
    {"TimesNewRomanPSMT", "", 400, false},
    {"TimesNewRomanPS-BoldMT", "Bold", 700, false},
    {"TimesNewRomanPS-ItalicMT", "Italic", 400, true},
    {"TimesNewRomanPS-BoldItalicMT", "Bold Italic", 700, true},
};
constexpr PhoneFace verdana[] = {
    {"Verdana", "", 400, false},
    {"Verdana-Bold", "Bold", 700, false},
    {"Verdana-Italic", "Italic", 400, true},
    {"Verdana-BoldItalic", "Bold Italic", 700, true},
};

constexpr PhoneFamily families[] = {
    {"Al Nile", "DejaVu Sans Condensed", alNile},
    {"Apple Color Emoji", "Noto Color Emoji", appleColorEmoji},
    {"Arial", "Liberation Sans,DejaVu Sans Condensed", arial},
    {"Avenir Next", "Inter Display", avenirNext},
    {"Courier", "Liberation Mono,Noto Sans Mono CJK SC", courier},
    {"Courier New", "Liberation Mono,Noto Sans Mono CJK SC", courierNew},
    {"Georgia", "DejaVu Serif", georgia},
    {"Helvetica", "Nimbus Sans,Noto Sans CJK SC", helvetica},
    {"Helvetica Neue", "Inter Display,Inter", helveticaNeue},
    {"Menlo", "DejaVu Sans Mono", menlo},
    {"PingFang SC", "Noto Sans CJK SC", pingFang},
    {"Times New Roman", "Liberation Serif,Noto Serif CJK SC", timesNewRoman},
    {"Verdana", "DejaVu Sans", verdana},
};

} // namespace

std::span<const PhoneFamily> phoneFamilies() { return families; }

const PhoneFamily* phoneFamily(std::string_view name) {
    const auto* found = std::ranges::find(families, name, &PhoneFamily::name);
    return found == std::end(families) ? nullptr : found;
}

} // namespace desktop
