// The platform's numbers for alignments and line ends, as the drawing core knows them.
#pragma once

#include "bindings/uikit/label.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop {

/// `natural` for a number that is none.
[[nodiscard]] TextAlignment drawnAlignment(ui::TextAlignment alignment);
/// `truncatingTail` for a number that is none.
[[nodiscard]] LineBreakMode drawnLineBreakMode(ui::LineBreakMode mode);

} // namespace desktop
