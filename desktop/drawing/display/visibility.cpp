// Looking through the list from the front.
#include "desktop/drawing/display/visibility.hpp"

#include "desktop/drawing/display/coverage.hpp"

namespace desktop {
namespace {

/// The pixels that an upright box covers wholly, but for some near round corners.
Region covered(const PlacedBox& shape, const PixelRectangle& limits) {
    Region region = regionOf(pixelsInside(shape.bounds(), limits));
    for (const PixelRectangle& part : curvedParts(shape, 0, limits)) {
        subtract(region, part);
    }
    return region;
}

/// The pixels behind an item that nobody sees; null when there is none, or too few to matter.
Region hiddenBy(const DisplayList& list, const DisplayItem& item) {
    constexpr long long fewest = 4096;
    if (item.kind != DisplayItem::Kind::fill || !(item.colour.alpha >= 1) ||
        !item.shape.isUpright() || item.extents.area() < fewest) {
        return nullptr;
    }
    Region region = covered(item.shape, item.extents);
    for (int index = item.group; index != DisplayGroup::none;) {
        const DisplayGroup& group = list.groups[static_cast<std::size_t>(index)];
        if (group.kind == DisplayGroup::Kind::opacity || !group.shape.isUpright()) {
            return nullptr;
        }
        for (const PixelRectangle& part : curvedParts(group.shape, 0, item.extents)) {
            subtract(region, part);
        }
        index = group.parent;
    }
    return region;
}

} // namespace

std::vector<Region> visibleRegions(const DisplayList& list, const PixelArea& area) {
    Region rest = regionOf({});
    for (const PixelRectangle& rectangle : area.rectangles()) {
        const Region added = regionOf(rectangle);
        cairo_region_union(rest.get(), added.get());
    }
    std::vector<Region> regions(list.items.size());
    for (std::size_t index = list.items.size(); index-- > 0;) {
        const DisplayItem& item = list.items[index];
        regions[index] = intersection(rest, item.extents);
        if (const Region hidden = hiddenBy(list, item); hidden) {
            cairo_region_subtract(rest.get(), hidden.get());
        }
    }
    return regions;
}

} // namespace desktop
