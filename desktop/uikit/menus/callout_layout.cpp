// Filling pages from the left.
#include "desktop/uikit/menus/callout_layout.hpp"

#include <algorithm>

namespace desktop {
namespace {

constexpr double titleMargin = 12;
constexpr double arrowWidth = 34;
constexpr double topBar = 44; // the status bar's share of the screen

} // namespace

std::vector<CalloutPage> calloutPages(const std::vector<double>& titles, double widest) {
    std::vector<double> widths;
    double whole = 0;
    for (const double title : titles) {
        widths.push_back(
            std::clamp(title + 2 * titleMargin, 0.0, std::max(0.0, widest - 2 * arrowWidth)));
        whole += widths.back();
    }
    const bool hasArrows = whole > widest;
    std::vector<CalloutPage> pages;
    double x = 0;
    for (std::size_t item = 0; item < widths.size(); ++item) {
        const bool isLast = item + 1 == widths.size();
        const double kept = hasArrows && !isLast ? arrowWidth : 0;
        if (pages.empty() || (hasArrows && x + widths[item] + kept > widest)) {
            if (!pages.empty()) {
                pages.back().push_back({CalloutPart::Role::forward, 0, x, arrowWidth});
            }
            const bool isFirst = pages.empty();
            pages.emplace_back();
            x = 0;
            if (!isFirst) {
                pages.back().push_back({CalloutPart::Role::back, 0, 0, arrowWidth});
                x = arrowWidth;
            }
        }
        pages.back().push_back({CalloutPart::Role::item, item, x, widths[item]});
        x += widths[item];
    }
    return pages;
}

double widthOf(const CalloutPage& page) {
    return page.empty() ? 0 : page.back().x + page.back().width;
}

CalloutPlace placeCallout(double width, const Rectangle& target, const Rectangle& screen) {
    constexpr double height = calloutBarHeight + calloutArrowHeight;
    CalloutPlace place;
    const double middle = std::clamp(target.x + target.width / 2, screen.x + calloutMargin,
                                     screen.x + screen.width - calloutMargin);
    const double rightmost = screen.x + screen.width - calloutMargin - width;
    place.box = {std::clamp(middle - width / 2, screen.x + calloutMargin,
                            std::max(rightmost, screen.x + calloutMargin)),
                 target.y - height, width, height};
    if (place.box.y < screen.y + topBar) {
        place.isAbove = false;
        place.box.y = std::min(target.y + target.height, screen.y + screen.height - height);
    }
    constexpr double corner = 16;
    place.tip = std::clamp(middle - place.box.x, std::min(corner, width / 2),
                           std::max(width - corner, width / 2));
    return place;
}

} // namespace desktop
