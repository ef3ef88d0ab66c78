// Navigation bars: the title, the way back and the buttons of the top item.
#include "desktop/uikit/navigation/navigation_bar.hpp"

#include "bindings/uikit/bar_button_item.hpp"

#include "desktop/uikit/navigation/bar_button_item.hpp"
#include "desktop/uikit/navigation/navigation_item.hpp"

#include <algorithm>

namespace desktop {
namespace {

using namespace ns::literals;

// The platform's measures.
constexpr double largeTitleHeight = 52;
constexpr double barTitleSize = 17;
constexpr double largeTitleSize = 34;
constexpr double barMargin = 16;
constexpr double backMargin = 8;
constexpr double gap = 16;

void removeViews(const std::vector<objc::Strong<ui::BarButtonItem>>& items) {
    for (const auto& item : items) {
        BarButtonItem::of(item).view().removeFromSuperview();
    }
}

std::vector<objc::Strong<ui::BarButtonItem>> listed(ns::Array items) {
    std::vector<objc::Strong<ui::BarButtonItem>> list;
    for (const objc::Object item : items) {
        list.emplace_back(item.assume<ui::BarButtonItem>());
    }
    return list;
}

/// Places items side by side, away from an edge; answers where the next one would begin.
double placeItems(const std::vector<objc::Strong<ui::BarButtonItem>>& items, double edge,
                  double direction, double top) {
    constexpr double height = NavigationBar::barHeight;
    for (const auto& item : items) {
        BarButtonItem& peer = BarButtonItem::of(item);
        const double width = peer.width(height);
        if (const ui::View view = peer.view(); view) {
            const double own = view.bounds().size.height;
            const bool isCustom = !view.as<ui::Button>() && own > 0;
            const double tall = isCustom ? std::min(own, height) : height;
            view.setFrame(
                {{direction > 0 ? edge : edge - width, top + (height - tall) / 2}, {width, tall}});
        }
        edge += direction * (width + gap);
    }
    return edge;
}

} // namespace

std::vector<objc::MethodRow> NavigationBar::methods() {
    return {
        objc::method<"initWithFrame:", &NavigationBar::initWithFrame>(),
        objc::property<"items", &NavigationBar::items, &NavigationBar::setItems>(),
        objc::method<"topItem", &NavigationBar::topItem>(),
        objc::property<"prefersLargeTitles", &NavigationBar::prefersLargeTitles_,
                       &NavigationBar::showTop>(),
        objc::property<"barTintColor", &NavigationBar::barTintColor_>(),
        objc::property<"titleTextAttributes", &NavigationBar::titleTextAttributes_>(),
        objc::flag<"translucent", &NavigationBar::translucent_>(),
        objc::method<"layoutSubviews", &NavigationBar::layoutSubviews>(),
        objc::method<"sizeThatFits:", &NavigationBar::sizeThatFits>(),
        objc::method<"backPressed", &NavigationBar::backPressed>(),
    };
}

NavigationBar::~NavigationBar() { setItems(nullptr); }

ui::NavigationBar NavigationBar::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    titleLabel_ = ui::Label::withFrame({});
    self().addSubview(titleLabel_);
    return self();
}

void NavigationBar::setItems(ns::ArrayOf<ui::NavigationItem> items) {
    for (const objc::Object item : items_) {
        NavigationItem::of(item).changed = nullptr;
    }
    items_ = items;
    for (const objc::Object item : items_) {
        NavigationItem::of(item).changed = [this] { showTop(); };
    }
    if (titleLabel_) {
        showTop();
    }
}

ui::NavigationItem NavigationBar::topItem() const {
    const unsigned long count = items_.count();
    return count > 0 ? items_.at(count - 1).as<ui::NavigationItem>() : nullptr;
}

void NavigationBar::showTop() {
    const ui::NavigationItem top = topItem();
    titleLabel_.setFont(prefersLargeTitles_ ? ui::Font::boldSystem(largeTitleSize)
                                            : ui::Font::system(barTitleSize, ui::Font::semibold));
    titleLabel_.setTextAlignment(prefersLargeTitles_ ? ui::TextAlignment::left
                                                     : ui::TextAlignment::center);
    titleLabel_.setText(top.title());
    titleView_.removeFromSuperview();
    titleView_ = top ? NavigationItem::of(top).titleView() : ui::View();
    if (titleView_) {
        self().addSubview(titleView_);
    }
    titleLabel_.setHidden(static_cast<bool>(titleView_));
    showButtons(top);
    showBackButton(top);
    self().setNeedsLayout();
}

void NavigationBar::showButtons(ui::NavigationItem top) {
    removeViews(left_);
    removeViews(right_);
    left_ = top ? listed(NavigationItem::of(top).left()) : decltype(left_)();
    right_ = top ? listed(NavigationItem::of(top).right()) : decltype(right_)();
    for (const auto* items : {&left_, &right_}) {
        for (const auto& item : *items) {
            self().addSubview(BarButtonItem::of(item).view());
        }
    }
}

void NavigationBar::showBackButton(ui::NavigationItem top) {
    backButton_.removeFromSuperview();
    backButton_ = nullptr;
    const unsigned long count = items_.count();
    if (count < 2 || !left_.empty() || NavigationItem::of(top).hidesBack()) {
        return;
    }
    const auto previous = items_.at(count - 2);
    const ns::String title = NavigationItem::of(previous).backTitle();
    backButton_ = ui::Button::withType(ui::ButtonType::system);
    backButton_.setImage(
        ui::Image::systemNamed(u"chevron.left"_ns, ui::ImageSymbolConfiguration::withPointSize(
                                                       21, ui::SymbolWeight::regular)),
        ui::ControlState::normal);
    backButton_.titleLabel().setFont(ui::Font::system(barTitleSize));
    backButton_.setTitle(title ? title : u"返回"_ns, ui::ControlState::normal);
    constexpr double space = 6; // between chevron and title
    backButton_.setTitleEdgeInsets({0, space, 0, -space});
    backButton_.setContentEdgeInsets({0, 0, 0, space});
    backButton_.addTarget(self(), objc::selector<"backPressed">(),
                          ui::ControlEvents::touchUpInside);
    self().addSubview(backButton_);
}

void NavigationBar::backPressed() {
    if (goBack) {
        goBack();
    }
}

void NavigationBar::layoutSubviews() {
    const CGSize size = self().bounds().size;
    const double top =
        prefersLargeTitles_ ? size.height - largeTitleHeight - barHeight : size.height - barHeight;
    const UIEdgeInsets safe = self().safeAreaInsets();
    const double start = safe.left + barMargin;
    const double end = size.width - safe.right - barMargin;
    double left = placeItems(left_, start, 1, top);
    const double right = placeItems(right_, end, -1, top);
    if (backButton_) {
        const double width =
            std::min(backButton_.sizeThatFits({0, barHeight}).width, size.width / 2);
        backButton_.setFrame({{safe.left + backMargin, top}, {width, barHeight}});
        left = safe.left + backMargin + width + gap;
    }
    if (prefersLargeTitles_) {
        titleLabel_.setFrame(
            {{start, size.height - largeTitleHeight}, {end - start, largeTitleHeight}});
    } else {
        placeSmallTitle(left, right, top);
    }
}

/// In the middle of the bar, or as near to it as the buttons allow.
void NavigationBar::placeSmallTitle(double left, double right, double top) {
    const ui::View title = titleView_ ? static_cast<ui::View>(titleView_) : titleLabel_;
    const CGSize wanted = title.sizeThatFits({right - left, barHeight});
    const double width = std::clamp(wanted.width, 0.0, std::max(0.0, right - left));
    const double height = titleView_ ? std::min(wanted.height, barHeight) : barHeight;
    const double middle = (self().bounds().size.width - width) / 2;
    const double x = std::max(left, std::min(middle, right - width));
    title.setFrame({{x, top + (barHeight - height) / 2}, {width, height}});
}

CGSize NavigationBar::sizeThatFits(CGSize room) const {
    return {room.width, barHeight + (prefersLargeTitles_ ? largeTitleHeight : 0)};
}

} // namespace desktop
