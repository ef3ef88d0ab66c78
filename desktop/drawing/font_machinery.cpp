// Sets up fontconfig and Pango independently of the machine's font preferences.
#include "desktop/drawing/font_machinery.hpp"

#include "desktop/drawing/phone_fonts.hpp"

#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

// Fonts that exist only as coloured bitmaps have to be scaled by a rule, here as everywhere.
constexpr const char* configurationText = R"(<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <match target="pattern">
    <test name="family"><string>emoji</string></test>
    <edit name="family" mode="prepend" binding="strong"><string>Noto Color Emoji</string></edit>
  </match>
  <match target="font">
    <test name="outline" compare="eq"><bool>false</bool></test>
    <edit name="pixelsizefixupfactor" mode="assign">
      <divide>
        <name target="pattern">pixelsize</name>
        <name target="font">pixelsize</name>
      </divide>
    </edit>
    <edit name="matrix" mode="assign">
      <times>
        <name>matrix</name>
        <matrix>
          <name>pixelsizefixupfactor</name><double>0</double>
          <double>0</double><name>pixelsizefixupfactor</name>
        </matrix>
      </times>
    </edit>
    <edit name="size" mode="assign">
      <divide><name>size</name><name>pixelsizefixupfactor</name></divide>
    </edit>
  </match>
</fontconfig>
)";

using Configuration = Handle<FcConfig, FcConfigDestroy>;

Configuration makeConfiguration() {
    Configuration configuration(FcConfigCreate());
    FcConfigParseAndLoadFromMemory(configuration.get(),
                                   reinterpret_cast<const FcChar8*>(configurationText), FcTrue);
    FcConfigBuildFonts(configuration.get());
    return configuration;
}

using PangoContextHandle = Handle<PangoContext, g_object_unref>;

PangoContextHandle makeContext() {
    const Handle<PangoFontMap, g_object_unref> map(pango_cairo_font_map_new());
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(map.get()), fontConfiguration());
    PangoContextHandle context(pango_font_map_create_context(map.get()));
    const Handle<cairo_font_options_t, cairo_font_options_destroy> options(
        cairo_font_options_create());
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    pango_cairo_context_set_font_options(context.get(), options.get());
    pango_context_set_round_glyph_positions(context.get(), FALSE);
    pango_context_set_language(context.get(), pango_language_from_string("zh-CN"));
    return context;
}

// The phone's system font has a tighter cut for titles; so has its stand-in.
constexpr double titleSize = 20;

std::string familiesOf(const Font& font) {
    const std::string system = font.size >= titleSize ? "Inter Display,Inter" : "Inter";
    const std::string substitutes = ",Noto Sans CJK SC,Noto Color Emoji,DejaVu Sans";
    if (font.family.empty()) {
        return system + substitutes;
    }
    if (font.family == Font::monospacedFamily) {
        return "DejaVu Sans Mono" + substitutes;
    }
    if (const PhoneFamily* family = phoneFamily(font.family)) {
        return std::string(family->standIns) + "," + system + substitutes;
    }
    return font.family + "," + system + substitutes;
}

} // namespace

FcConfig* fontConfiguration() {
    static const Configuration configuration = makeConfiguration();
    return configuration.get();
}

PangoContext* textContext() {
    thread_local const PangoContextHandle context = makeContext();
    return context.get();
}

double drawnSize(const Font& font) {
    return font.size > 0 ? std::min(font.size, Font::largestSize) : 0;
}

FontDescription describe(const Font& font) {
    FontDescription description(pango_font_description_new());
    pango_font_description_set_family(description.get(), familiesOf(font).c_str());
    pango_font_description_set_absolute_size(description.get(), drawnSize(font) * PANGO_SCALE);
    pango_font_description_set_weight(description.get(),
                                      static_cast<PangoWeight>(std::clamp(font.weight, 100, 900)));
    pango_font_description_set_style(description.get(),
                                     font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
    return description;
}

} // namespace desktop
