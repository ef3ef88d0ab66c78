// Which pixels of each item are to be drawn: those that nothing opaque lies over.
#pragma once

#include "desktop/drawing/display/display_list.hpp"
#include "desktop/drawing/display/region.hpp"

namespace desktop {

/// For each item of the list, the part of the area in which it can be seen.
[[nodiscard]] std::vector<Region> visibleRegions(const DisplayList& list, const PixelArea& area);

} // namespace desktop
