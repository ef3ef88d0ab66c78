// Gives Pango and fontconfig the same fonts on every machine, and translates font values for them.
#pragma once

#include "desktop/drawing/font.hpp"
#include "desktop/drawing/handle.hpp"

#include <fontconfig/fontconfig.h>
#include <pango/pango.h>

namespace desktop {

/// The fonts installed for all users, without the rules and preferences of the user or the system;
/// made once, owned by the program. Any thread.
FcConfig* fontConfiguration();

/// The calling thread's context for measuring and drawing: unhinted, and Chinese in its simplified
/// forms. Owned by the thread.
PangoContext* textContext();

using FontDescription = Handle<PangoFontDescription, pango_font_description_free>;

/// The font with its whole line of substitutes; the size brought into the drawable range.
FontDescription describe(const Font& font);

/// The size that is drawn: 0 for one that draws nothing.
double drawnSize(const Font& font);

} // namespace desktop
