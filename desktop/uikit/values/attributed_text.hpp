// Attributed strings in terms of the drawing core.
#pragma once

#include "bindings/uikit/color.hpp"
#include "bindings/uikit/font.hpp"
#include "bindings/uikit/text_attributes.hpp"
#include "desktop/drawing/text_layout.hpp"

#include <vector>

namespace desktop {

/// A dictionary with that font and colour; nil values are left out.
[[nodiscard]] ns::Dictionary textAttributes(ui::Font font, ui::Color color);

/// How text with these attributes looks; what they do not tell is as in `plain`.
[[nodiscard]] TextRun lookOf(ns::Dictionary attributes, const TextRun& plain);

/// The looks of a stretch, counted from its start. The stretch must lie within the text.
[[nodiscard]] std::vector<TextRun> runsOf(ns::AttributedString text, Stretch stretch,
                                          const TextRun& plain);

} // namespace desktop
