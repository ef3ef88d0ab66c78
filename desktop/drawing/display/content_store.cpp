// Drawing contents into pictures, and forgetting them.
#include "desktop/drawing/display/content_store.hpp"

#include "desktop/drawing/handle.hpp"

#include <algorithm>
#include <cstring>
#include <span>

namespace desktop {
namespace {

using Context = Handle<cairo_t, cairo_destroy>;

std::shared_ptr<cairo_surface_t> clearSurface(const PixelRectangle& size) {
    return {cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height),
            cairo_surface_destroy};
}

std::span<const std::uint32_t> row(cairo_surface_t* surface, int y) {
    const unsigned char* data = cairo_image_surface_get_data(surface) +
                                std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface);
    return {reinterpret_cast<const std::uint32_t*>(data),
            static_cast<std::size_t>(cairo_image_surface_get_width(surface))};
}

/// The smallest part of a surface outside of which it is clear.
PixelRectangle inkOf(cairo_surface_t* surface) {
    PixelRectangle ink;
    const auto isInk = [](std::uint32_t pixel) { return pixel != 0; };
    for (int y = 0; y < cairo_image_surface_get_height(surface); ++y) {
        const auto pixels = row(surface, y);
        const auto first = std::ranges::find_if(pixels, isInk);
        if (first != pixels.end()) {
            auto last = pixels.end();
            while (!isInk(*(last - 1))) {
                --last;
            }
            ink = bounding(ink, {static_cast<int>(first - pixels.begin()), y,
                                 static_cast<int>(last - first), 1});
        }
    }
    return ink;
}

std::shared_ptr<cairo_surface_t> part(const std::shared_ptr<cairo_surface_t>& surface,
                                      const PixelRectangle& wanted) {
    auto copy = clearSurface(wanted);
    unsigned char* data = cairo_image_surface_get_data(copy.get());
    for (int y = 0; data != nullptr && y < wanted.height; ++y) {
        const auto from = row(surface.get(), wanted.y + y)
                              .subspan(static_cast<std::size_t>(wanted.x),
                                       static_cast<std::size_t>(wanted.width));
        std::memcpy(data + std::ptrdiff_t{y} * cairo_image_surface_get_stride(copy.get()),
                    from.data(), from.size_bytes());
    }
    cairo_surface_mark_dirty(copy.get());
    return copy;
}

/// What to draw so that `needed` is there: everything unless that is a lot.
PixelRectangle worthDrawing(const ContentPlace& place, const PixelRectangle& needed, bool moves) {
    constexpr int huge = 1 << 28;
    constexpr long long affordable = 4'000'000;
    const PixelRectangle whole = pixelsAround(place.bounds, {-huge, -huge, 2 * huge, 2 * huge});
    if (whole.area() <= affordable && std::max(whole.width, whole.height) <= Image::largestSide) {
        return whole;
    }
    // One that is seen through a moving window will be needed a little farther soon.
    const int across = moves ? needed.width / 4 : 0;
    const int down = moves ? needed.height / 4 : 0;
    return intersection(whole, {needed.x - across, needed.y - down, needed.width + 2 * across,
                                needed.height + 2 * down});
}

} // namespace

ContentStore::Picture ContentStore::picture(const DisplayItem& item, const ContentDrawer& draw) {
    const ContentPlace place(item.shape);
    const PixelRectangle needed = item.extents.moved(-place.right, -place.down);
    Entry& entry = entries_[item.stamp];
    const bool same = entry.inPicture == place.inPicture && entry.box == item.shape.box;
    if (!same || !contains(entry.covered, needed)) {
        const PixelRectangle wanted = worthDrawing(place, needed, same && entry.lastUse != 0);
        bytes_ -= entry.bytes;
        entry = {};
        entry = drawn(item, place, wanted, draw);
        bytes_ += entry.bytes;
    }
    entry.lastUse = ++uses_;
    Picture picture{entry.surface, entry.ink.x + place.right, entry.ink.y + place.down};
    makeRoom();
    return picture;
}

ContentStore::Entry ContentStore::drawn(const DisplayItem& item, const ContentPlace& place,
                                        const PixelRectangle& part, const ContentDrawer& draw) {
    Entry entry{.inPicture = place.inPicture, .box = item.shape.box, .covered = part};
    const auto surface = clearSurface(part);
    const Context context(cairo_create(surface.get()));
    Canvas canvas(context.get());
    canvas.translate(-part.x, -part.y);
    if (!canvas.concatenate(place.inPicture)) {
        return entry;
    }
    if (!item.shape.isUpright()) {
        canvas.clip(item.shape.box); // the picture itself ends at an upright content's bounds
    }
    draw(item.stamp, canvas);
    cairo_surface_flush(surface.get());
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        return entry;
    }
    const PixelRectangle ink = inkOf(surface.get());
    if (!ink.isEmpty()) {
        entry.surface = desktop::part(surface, ink);
        entry.ink = ink.moved(part.x, part.y);
        entry.bytes = static_cast<std::size_t>(ink.area()) * sizeof(std::uint32_t);
    }
    return entry;
}

void ContentStore::makeRoom() {
    // Clear contents have no picture, and yet an entry.
    constexpr std::size_t mostEntries = 20'000;
    while (entries_.size() > 1 && (bytes_ > mostBytes || entries_.size() > mostEntries)) {
        const auto oldest = std::ranges::min_element(
            entries_, {}, [](const auto& named) { return named.second.lastUse; });
        bytes_ -= oldest->second.bytes;
        entries_.erase(oldest);
    }
}

} // namespace desktop
