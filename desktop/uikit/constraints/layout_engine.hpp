// Solves the constraints of a tree of views, and places the views.
#pragma once

#include "bindings/uikit/view.hpp"

namespace desktop::layout_engine {

/// Something that layouts depend on has changed, in whichever tree.
void invalidate();

/// Brings the frames of all constrained views up to date that are in one tree with this one.
/// Whether there was anything to solve since the last time. Main thread.
bool update(ui::View view);

/// The size that the constraints inside the view give it, as near to `target` as they let it.
[[nodiscard]] CGSize fittingSize(ui::View view, CGSize target);

} // namespace desktop::layout_engine
