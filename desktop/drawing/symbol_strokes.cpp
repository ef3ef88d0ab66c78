// Symbols drawn by hand, which lie in the program as text.
#include "desktop/drawing/symbol_shape.hpp"

#include "desktop/drawing/handle.hpp"

#include <algorithm>
#include <array>
#include <locale>
#include <map>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

// The bytes of the file, which says how it is written.
asm(".pushsection .rodata\n"
    ".globl wentra_symbol_strokes\n"
    ".hidden wentra_symbol_strokes\n"
    "wentra_symbol_strokes:\n"
    ".incbin \"" SYMBOL_STROKES "\"\n"
    ".globl wentra_symbol_strokes_end\n"
    ".hidden wentra_symbol_strokes_end\n"
    "wentra_symbol_strokes_end:\n"
    ".popsection\n");
extern const char wentra_symbol_strokes[];     // NOLINT: named in the assembly above
extern const char wentra_symbol_strokes_end[]; // NOLINT

namespace desktop {
namespace {

constexpr double regularLine = 1.9;
constexpr double carvedLine = 1.4;

struct Part {
    std::string ink;
    std::string path;
};
using Parts = std::vector<Part>;

const std::map<std::string, Parts, std::less<>>& symbols() {
    static const auto all = [] {
        std::map<std::string, Parts, std::less<>> symbols;
        std::istringstream file(std::string(wentra_symbol_strokes, wentra_symbol_strokes_end));
        for (std::string line; std::getline(file, line);) {
            std::istringstream words(line);
            std::string name;
            Part part;
            words >> name >> part.ink;
            std::getline(words, part.path);
            if (!name.empty() && !name.starts_with('#')) {
                symbols[name].push_back(part);
            }
        }
        return symbols;
    }();
    return all;
}

template <std::size_t Count>
std::array<double, Count> numbers(std::istream& path) {
    std::array<double, Count> values{};
    for (double& value : values) {
        path >> value;
    }
    return values;
}

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

void addArc(cairo_t* context, const std::array<double, 5>& arc) {
    const auto [x, y, radius, from, to] = arc;
    cairo_arc(context, x, y, radius, radians(from), radians(to));
}

void addBox(cairo_t* context, const std::array<double, 5>& box) {
    const auto [x, y, width, height, radius] = box;
    cairo_new_sub_path(context);
    addArc(context, {x + width - radius, y + radius, radius, 270, 360});
    addArc(context, {x + width - radius, y + height - radius, radius, 0, 90});
    addArc(context, {x + radius, y + height - radius, radius, 90, 180});
    addArc(context, {x + radius, y + radius, radius, 180, 270});
    cairo_close_path(context);
}

void addCircle(cairo_t* context, const std::array<double, 3>& circle) {
    cairo_new_sub_path(context);
    addArc(context, {circle[0], circle[1], circle[2], 0, 360});
    cairo_close_path(context);
}

void addStep(cairo_t* context, char step, std::istream& path) {
    switch (step) {
    case 'M': {
        const auto [x, y] = numbers<2>(path);
        return cairo_move_to(context, x, y);
    }
    case 'L': {
        const auto [x, y] = numbers<2>(path);
        return cairo_line_to(context, x, y);
    }
    case 'A':
        return addArc(context, numbers<5>(path));
    case 'R':
        return addBox(context, numbers<5>(path));
    case 'O':
        return addCircle(context, numbers<3>(path));
    default:
        return cairo_close_path(context);
    }
}

void trace(cairo_t* context, const Part& part, double bolder) {
    std::istringstream path(part.path);
    path.imbue(std::locale::classic());
    cairo_new_path(context);
    for (char step = 0; path >> step;) {
        addStep(context, step, path);
    }
    cairo_set_line_width(context, part.ink == "carve" ? carvedLine : regularLine + bolder);
    cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(context, CAIRO_LINE_JOIN_ROUND);
}

bool isDrawn(const Part& part) { return part.ink == "line" || part.ink == "fill"; }
bool isLine(const Part& part) { return part.ink == "line" || part.ink == "carve"; }

void paint(cairo_t* context, const Parts& parts, double bolder) {
    for (const Part& part : parts) {
        trace(context, part, bolder);
        cairo_set_operator(context, isDrawn(part) ? CAIRO_OPERATOR_OVER : CAIRO_OPERATOR_DEST_OUT);
        isLine(part) ? cairo_stroke(context) : cairo_fill(context);
    }
}

Rectangle boxOf(const Parts& parts) {
    const Handle<cairo_surface_t, &cairo_surface_destroy> surface(
        cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr));
    const Handle<cairo_t, &cairo_destroy> context(cairo_create(surface.get()));
    double left = 28;
    double top = 28;
    double right = 0;
    double bottom = 0;
    for (const Part& part : parts) {
        if (!isDrawn(part)) {
            continue;
        }
        trace(context.get(), part, 0);
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        const auto measure = isLine(part) ? &cairo_stroke_extents : &cairo_fill_extents;
        measure(context.get(), &x1, &y1, &x2, &y2);
        left = std::min(left, x1);
        top = std::min(top, y1);
        right = std::max(right, x2);
        bottom = std::max(bottom, y2);
    }
    return {left, top, right - left, bottom - top};
}

} // namespace

std::optional<SymbolShape> strokeShape(std::string_view name) {
    const auto found = symbols().find(name);
    if (found == symbols().end()) {
        return std::nullopt;
    }
    const Parts& parts = found->second;
    return SymbolShape{
        boxOf(parts), [&parts](cairo_t* context, double bolder) { paint(context, parts, bolder); }};
}

} // namespace desktop
