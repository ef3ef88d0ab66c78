// The platform's arrangement of image and title.
#include "desktop/uikit/controls/button_layout.hpp"

#include <algorithm>

namespace desktop {
namespace {

CGRect inset(CGRect rect, UIEdgeInsets by) {
    return {{rect.origin.x + by.left, rect.origin.y + by.top},
            {std::max(0.0, rect.size.width - by.left - by.right),
             std::max(0.0, rect.size.height - by.top - by.bottom)}};
}

/// Where something that long starts in a room.
double startAcross(HorizontalAlignment alignment, double start, double room, double length) {
    switch (alignment) {
    case HorizontalAlignment::left:
    case HorizontalAlignment::leading:
        return start;
    case HorizontalAlignment::right:
    case HorizontalAlignment::trailing:
        return start + room - length;
    default:
        return start + (room - length) / 2;
    }
}

double startDown(VerticalAlignment alignment, double start, double room, double length) {
    switch (alignment) {
    case VerticalAlignment::top:
        return start;
    case VerticalAlignment::bottom:
        return start + room - length;
    default:
        return start + (room - length) / 2;
    }
}

/// Content no larger than its room; the image comes first.
ButtonContent fitted(ButtonContent content, CGRect imageRoom, CGRect titleRoom) {
    content.image.width = std::min(content.image.width, imageRoom.size.width);
    content.image.height = std::min(content.image.height, imageRoom.size.height);
    content.title.width = std::clamp(titleRoom.size.width - content.image.width, 0.0,
                                     std::max(0.0, content.title.width));
    content.title.height = std::min(content.title.height, titleRoom.size.height);
    return content;
}

} // namespace

ButtonLayout layOutButton(const ButtonContent& content, CGRect bounds) {
    const CGRect room = inset(bounds, content.contentInsets);
    const CGRect imageRoom = inset(room, content.imageInsets);
    const CGRect titleRoom = inset(room, content.titleInsets);
    const auto [image, title, contentInsets, imageInsets, titleInsets, horizontal, vertical] =
        fitted(content, imageRoom, titleRoom);
    const double width = image.width + title.width;
    ButtonLayout layout;
    layout.image = {{startAcross(horizontal, imageRoom.origin.x, imageRoom.size.width, width),
                     startDown(vertical, imageRoom.origin.y, imageRoom.size.height, image.height)},
                    image};
    layout.title = {
        {startAcross(horizontal, titleRoom.origin.x, titleRoom.size.width, width) + image.width,
         startDown(vertical, titleRoom.origin.y, titleRoom.size.height, title.height)},
        title};
    return layout;
}

CGSize buttonSize(const ButtonContent& content) {
    const UIEdgeInsets& insets = content.contentInsets;
    // Without any insets a title has some air above and below.
    constexpr double usualAir = 6;
    const bool hasAir = insets == UIEdgeInsets() && content.title.height > 0;
    const double air = hasAir ? 2 * usualAir : 0;
    return {content.image.width + content.title.width + insets.left + insets.right,
            std::max(content.image.height, content.title.height + air) + insets.top +
                insets.bottom};
}

} // namespace desktop
