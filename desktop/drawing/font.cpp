// Measures fonts by the tables of their faces.
#include "desktop/drawing/font.hpp"

#include "desktop/drawing/font_machinery.hpp"

#include <hb-ot.h>

namespace desktop {
namespace {

double points(hb_position_t position) { return static_cast<double>(position) / PANGO_SCALE; }

double measure(hb_font_t* face, hb_ot_metrics_tag_t tag) {
    hb_position_t position = 0;
    hb_ot_metrics_get_position_with_fallback(face, tag, &position);
    return points(position);
}

} // namespace

FontMetrics metrics(const Font& font) {
    if (drawnSize(font) <= 0) {
        return {};
    }
    const Handle<PangoFont, g_object_unref> loaded(
        pango_context_load_font(textContext(), describe(font).get()));
    if (!loaded) {
        return {};
    }
    hb_font_t* face = pango_font_get_hb_font(loaded.get());
    FontMetrics result;
    result.ascender = measure(face, HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER);
    result.descender = measure(face, HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER);
    result.lineHeight = result.ascender - result.descender;
    result.capHeight = measure(face, HB_OT_METRICS_TAG_CAP_HEIGHT);
    result.xHeight = measure(face, HB_OT_METRICS_TAG_X_HEIGHT);
    return result;
}

} // namespace desktop
