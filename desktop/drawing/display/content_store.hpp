// The pictures of what views draw themselves, kept from one drawing of the screen to the next.
#pragma once

#include "desktop/drawing/display/display_list.hpp"

#include <cairo.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>

namespace desktop {

/// Draws what has that stamp, in its own coordinates.
using ContentDrawer = std::function<void(std::uint64_t stamp, Canvas& canvas)>;

/// A content is drawn once, and again when its stamp, its bounds or its scale are different; of a
/// huge one, only the part that can be seen and some around it. The memory is bounded: what has not
/// been shown for longest goes first.
class ContentStore {
public:
    static constexpr std::size_t mostBytes = std::size_t{64} << 20U;

    /// The picture of a content, and where its top left corner lies on the screen. Null when there
    /// is nothing in it.
    struct Picture {
        std::shared_ptr<cairo_surface_t> surface = {};
        int x = 0;
        int y = 0;
    };

    /// The picture of an item, which must be a content, for all that can be seen of it.
    Picture picture(const DisplayItem& item, const ContentDrawer& draw);

    [[nodiscard]] std::size_t bytes() const { return bytes_; }

private:
    struct Entry {
        AffineTransform inPicture;
        Rectangle box;
        /// What has been drawn, and the part of it that is not clear; in the picture's pixels.
        PixelRectangle covered = {};
        PixelRectangle ink = {};
        std::shared_ptr<cairo_surface_t> surface = {};
        std::size_t bytes = 0;
        std::uint64_t lastUse = 0;
    };

    static Entry drawn(const DisplayItem& item, const ContentPlace& place,
                       const PixelRectangle& part, const ContentDrawer& draw);
    void makeRoom();

    std::unordered_map<std::uint64_t, Entry> entries_;
    std::size_t bytes_ = 0;
    std::uint64_t uses_ = 0;
};

} // namespace desktop
