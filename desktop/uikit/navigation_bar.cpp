// Navigation bars: the title label of the top item.
#include "desktop/uikit/navigation_bar.hpp"

namespace desktop {
namespace {

// The platform's measures.
constexpr double barHeight = 44;
constexpr double largeTitleHeight = 52;
constexpr double titleSize = 17;
constexpr double largeTitleSize = 34;
constexpr double margin = 16;

} // namespace

ui::NavigationBar NavigationBar::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    titleLabel_ = ui::Label::withFrame({});
    self().addSubview(titleLabel_);
    return self();
}

void NavigationBar::showTop() {
    const unsigned long count = items_.count();
    const auto top = count > 0 ? items_.at(count - 1).as<ui::NavigationItem>() : nullptr;
    titleLabel_.setFont(prefersLargeTitles_ ? ui::Font::boldSystem(largeTitleSize)
                                            : ui::Font::system(titleSize, ui::Font::semibold));
    titleLabel_.setTextAlignment(prefersLargeTitles_ ? ui::TextAlignment::left
                                                     : ui::TextAlignment::center);
    titleLabel_.setText(top.title());
    self().setNeedsLayout();
}

void NavigationBar::layoutSubviews() {
    const CGSize size = self().bounds().size;
    const double height = prefersLargeTitles_ ? largeTitleHeight : barHeight;
    titleLabel_.setFrame({{margin, size.height - height}, {size.width - 2 * margin, height}});
}

CGSize NavigationBar::sizeThatFits(CGSize room) const {
    return {room.width, barHeight + (prefersLargeTitles_ ? largeTitleHeight : 0)};
}

} // namespace desktop
