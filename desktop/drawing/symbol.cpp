// Drawing glyphs of the icon font, which lies in the program itself.
#include "desktop/drawing/symbol.hpp"

#include "desktop/drawing/canvas.hpp"
#include "desktop/drawing/handle.hpp"

#include <algorithm>
#include <cmath>
#include <hb.h>

// The font file's bytes.
asm(".pushsection .rodata\n"
    ".balign 16\n"
    "wentra_symbol_font:\n"
    ".incbin \"" SYMBOL_FONT "\"\n"
    "wentra_symbol_font_end:\n"
    ".popsection\n");
extern const char wentra_symbol_font[];     // NOLINT: named in the assembly above
extern const char wentra_symbol_font_end[]; // NOLINT

namespace desktop {
namespace {

/// The set draws a symbol for text of 20 points in a square of 28.
constexpr double emPerPointSize = 1.4;
/// The room that the phone leaves beside a symbol, for each point of its size.
constexpr double sideBearing = 0.06;

using FontHandle = Handle<hb_font_t, &hb_font_destroy>;

hb_font_t* symbolFont() {
    static const FontHandle font = [] {
        const auto length = static_cast<unsigned>(wentra_symbol_font_end - wentra_symbol_font);
        const Handle<hb_blob_t, &hb_blob_destroy> blob(
            hb_blob_create(wentra_symbol_font, length, HB_MEMORY_MODE_READONLY, nullptr, nullptr));
        const Handle<hb_face_t, &hb_face_destroy> face(hb_face_create(blob.get(), 0));
        return FontHandle(hb_font_create(face.get()));
    }();
    return font.get();
}

std::optional<hb_codepoint_t> glyphFor(std::string_view name) {
    for (const std::string& candidate : glyphNames(name)) {
        hb_codepoint_t glyph = 0;
        if (!candidate.empty() &&
            hb_font_get_glyph_from_name(symbolFont(), candidate.data(),
                                        static_cast<int>(candidate.size()), &glyph) != 0) {
            return glyph;
        }
    }
    return std::nullopt;
}

cairo_t* context(void* data) { return static_cast<cairo_t*>(data); }

hb_draw_funcs_t* pathDrawing() {
    static hb_draw_funcs_t* const functions = [] {
        hb_draw_funcs_t* made = hb_draw_funcs_create();
        hb_draw_funcs_set_move_to_func(
            made,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
                cairo_move_to(context(data), static_cast<double>(x), static_cast<double>(y));
            },
            nullptr, nullptr);
        hb_draw_funcs_set_line_to_func(
            made,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
                cairo_line_to(context(data), static_cast<double>(x), static_cast<double>(y));
            },
            nullptr, nullptr);
        hb_draw_funcs_set_cubic_to_func(
            made,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x1, float y1, float x2,
               float y2, float x, float y, void*) {
                cairo_curve_to(context(data), static_cast<double>(x1), static_cast<double>(y1),
                               static_cast<double>(x2), static_cast<double>(y2),
                               static_cast<double>(x), static_cast<double>(y));
            },
            nullptr, nullptr);
        hb_draw_funcs_set_close_path_func(
            made,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, void*) {
                cairo_close_path(context(data));
            },
            nullptr, nullptr);
        return made; // in use until the process ends
    }();
    return functions;
}

/// Adds the glyph's outline to the context's path, in the font's units, upside up.
void trace(hb_codepoint_t glyph, cairo_t* context) {
    cairo_new_path(context);
    hb_font_get_glyph_shape(symbolFont(), glyph, pathDrawing(), context);
}

/// The line along the outline that makes a symbol heavier, in points.
double emboldening(const SymbolStyle& style) {
    constexpr double regular = 400;
    constexpr double perWeight = 0.00016;
    return std::max(0.0, style.weight - regular) * perWeight * style.pointSize;
}

Rectangle box(hb_codepoint_t glyph) {
    hb_glyph_extents_t extents{};
    hb_font_get_glyph_extents(symbolFont(), glyph, &extents);
    return {static_cast<double>(extents.x_bearing), static_cast<double>(extents.y_bearing),
            static_cast<double>(extents.width), -static_cast<double>(extents.height)};
}

} // namespace

std::optional<Image> symbol(std::string_view name, const SymbolStyle& style, double scale) {
    const auto glyph = glyphFor(name);
    if (!glyph) {
        return std::nullopt;
    }
    SymbolStyle usable = style;
    usable.pointSize = style.pointSize > 0 ? std::min(style.pointSize, SymbolStyle::largestSize)
                                           : SymbolStyle::usualSize;
    const double line = emboldening(usable);
    const double unit = usable.pointSize * emPerPointSize /
                        static_cast<double>(hb_face_get_upem(hb_font_get_face(symbolFont())));
    const Rectangle outline = box(*glyph);
    const double side = sideBearing * usable.pointSize + line / 2;
    const auto whole = [scale](double points) { return std::ceil(points * scale) / scale; };
    const Size size{whole(outline.width * unit + 2 * side),
                    whole(outline.height * unit + 2 * line)};
    Canvas canvas(size, scale);
    cairo_t* const context = canvas.context();
    cairo_translate(context, (size.width - outline.width * unit) / 2,
                    (size.height - outline.height * unit) / 2);
    cairo_scale(context, unit, -unit);
    cairo_translate(context, -outline.x, -outline.y);
    trace(*glyph, context);
    cairo_set_source_rgba(context, 0, 0, 0, 1);
    cairo_fill_preserve(context);
    if (line > 0) {
        cairo_set_line_width(context, line / unit);
        cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
        cairo_stroke(context);
    }
    return canvas.snapshot();
}

} // namespace desktop
