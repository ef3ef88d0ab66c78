// The platform's places of sheets and popovers.
#include "desktop/uikit/presentation/presentation_geometry.hpp"

#include "desktop/coregraphics/affine.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace desktop {
namespace {

using Side = ui::PopoverArrowDirection;

/// As `std::clamp`, for bounds that may be the wrong way round: the lower one wins.
double within(double value, double low, double high) {
    return std::max(low, std::min(value, high));
}

bool isVertical(Side side) { return side == Side::up || side == Side::down; }

/// The room for the box when its arrow is on that side of it and points at the anchor.
CGRect roomBeside(CGRect anchor, CGRect room, Side side) {
    const double left = room.origin.x;
    const double top = room.origin.y;
    const double right = left + room.size.width;
    const double bottom = top + room.size.height;
    constexpr double arrow = PopoverPlace::arrowHeight;
    double from = 0;
    switch (side) {
    case Side::up:
        from = within(anchor.origin.y + anchor.size.height + arrow, top, bottom);
        return {{left, from}, {room.size.width, bottom - from}};
    case Side::down:
        from = within(anchor.origin.y - arrow, top, bottom);
        return {{left, top}, {room.size.width, from - top}};
    case Side::left:
        from = within(anchor.origin.x + anchor.size.width + arrow, left, right);
        return {{from, top}, {right - from, room.size.height}};
    default:
        from = within(anchor.origin.x - arrow, left, right);
        return {{left, top}, {from - left, room.size.height}};
    }
}

double share(CGSize content, CGRect room) {
    return std::min(1.0, room.size.width / std::max(1.0, content.width)) *
           std::min(1.0, room.size.height / std::max(1.0, content.height));
}

PopoverPlace placeOn(Side side, CGRect anchor, CGSize content, CGRect room) {
    const CGRect free = roomBeside(anchor, room, side);
    const CGSize size{within(content.width, 0, free.size.width),
                      within(content.height, 0, free.size.height)};
    const CGPoint middle = centre(anchor);
    const double right = free.origin.x + free.size.width - size.width;
    const double bottom = free.origin.y + free.size.height - size.height;
    CGPoint origin{within(middle.x - size.width / 2, free.origin.x, right),
                   within(middle.y - size.height / 2, free.origin.y, bottom)};
    PopoverPlace place;
    place.side = side;
    if (isVertical(side)) {
        origin.y = side == Side::up ? free.origin.y : bottom;
    } else {
        origin.x = side == Side::left ? free.origin.x : right;
    }
    place.box = {origin, size};
    // The arrow keeps clear of the rounded corners.
    constexpr double clear = PopoverPlace::cornerRadius + PopoverPlace::arrowBase / 2;
    constexpr double arrow = PopoverPlace::arrowHeight;
    if (isVertical(side)) {
        place.tip = {within(middle.x, origin.x + clear, origin.x + size.width - clear),
                     side == Side::up ? origin.y - arrow : origin.y + size.height + arrow};
    } else {
        place.tip = {side == Side::left ? origin.x - arrow : origin.x + size.width + arrow,
                     within(middle.y, origin.y + clear, origin.y + size.height - clear)};
    }
    return place;
}

struct BestSide {
    Side side{};
    double share = -1; ///< of the content that fits there
};

BestSide bestSide(CGRect anchor, CGSize content, CGRect room, Side permittedSides) {
    constexpr std::array order{Side::up, Side::down, Side::left, Side::right};
    BestSide best;
    for (const Side side : order) {
        const double fits = share(content, roomBeside(anchor, room, side));
        // With no permitted side at all, every side is.
        const bool permitted =
            !objc::haveAny(permittedSides, Side::any) || objc::haveAny(permittedSides, side);
        if (permitted && fits > best.share) {
            best = {side, fits};
        }
    }
    return best;
}

/// Where a box points that lies over its anchor, which fills the screen.
CGRect topEdge(CGRect anchor, CGRect room) {
    const double bottom = room.origin.y + room.size.height;
    return {{anchor.origin.x, within(anchor.origin.y, room.origin.y, bottom)},
            {anchor.size.width, 0}};
}

} // namespace

CGRect sheetFrame(CGRect screen, UIEdgeInsets safeArea) {
    if (screen.size.width > screen.size.height) {
        return screen; // there is no room to spare
    }
    constexpr double gap = 10; // below the status bar
    const double top = safeArea.top + gap;
    return {{screen.origin.x, screen.origin.y + top},
            {screen.size.width, std::max(0.0, screen.size.height - top)}};
}

CGRect PopoverPlace::frame() const {
    CGRect all = box;
    if (side == Side::up || side == Side::down) {
        all.origin.y -= side == Side::up ? arrowHeight : 0;
        all.size.height += arrowHeight;
    } else {
        all.origin.x -= side == Side::left ? arrowHeight : 0;
        all.size.width += arrowHeight;
    }
    return all;
}

PopoverPlace popoverPlace(CGRect anchor, CGSize content, CGRect room, Side permittedSides) {
    constexpr double tooLittle = 0.5;
    const BestSide beside = bestSide(anchor, content, room, permittedSides);
    const CGRect edge = topEdge(anchor, room);
    const BestSide over = bestSide(edge, content, room, permittedSides);
    return beside.share < tooLittle && over.share > beside.share
               ? placeOn(over.side, edge, content, room)
               : placeOn(beside.side, anchor, content, room);
}

} // namespace desktop
