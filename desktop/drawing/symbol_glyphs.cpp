// Symbols of the icon font, which lies in the program itself.
#include "desktop/drawing/symbol.hpp"
#include "desktop/drawing/symbol_shape.hpp"

#include "desktop/drawing/handle.hpp"

#include <hb.h>

// The font file's bytes.
asm(".pushsection .rodata\n"
    ".balign 16\n"
    ".globl wentra_symbol_font\n"
    ".hidden wentra_symbol_font\n"
    "wentra_symbol_font:\n"
    ".incbin \"" SYMBOL_FONT "\"\n"
    ".globl wentra_symbol_font_end\n"
    ".hidden wentra_symbol_font_end\n"
    "wentra_symbol_font_end:\n"
    ".popsection\n");
extern const char wentra_symbol_font[];     // NOLINT: named in the assembly above
extern const char wentra_symbol_font_end[]; // NOLINT

namespace desktop {
namespace {

constexpr double unitsPerEm = 28;

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

/// Units of the grid for one of the font.
double unit() {
    return unitsPerEm / static_cast<double>(hb_face_get_upem(hb_font_get_face(symbolFont())));
}

Rectangle box(hb_codepoint_t glyph) {
    hb_glyph_extents_t extents{};
    hb_font_get_glyph_extents(symbolFont(), glyph, &extents);
    const double scale = unit();
    return {extents.x_bearing * scale, -extents.y_bearing * scale, extents.width * scale,
            -extents.height * scale};
}

void paint(hb_codepoint_t glyph, cairo_t* context, double bolder) {
    cairo_scale(context, unit(), -unit());
    trace(glyph, context);
    cairo_fill_preserve(context);
    if (bolder > 0) {
        cairo_set_line_width(context, bolder / unit());
        cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
        cairo_stroke(context);
    }
}

} // namespace

std::optional<SymbolShape> glyphShape(std::string_view name) {
    const auto glyph = glyphFor(name);
    if (!glyph) {
        return std::nullopt;
    }
    return SymbolShape{
        box(*glyph), [glyph](cairo_t* context, double bolder) { paint(*glyph, context, bolder); }};
}

} // namespace desktop
