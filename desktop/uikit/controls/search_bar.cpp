// The field in the bar.
#include "desktop/uikit/controls/search_bar.hpp"

#include "bindings/uikit/image_view.hpp"

#include "desktop/uikit/delegate_messages.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

// The platform's measures, in points.
constexpr double barHeight = 56;
constexpr double fieldHeight = 36;
constexpr double margin = 8;

ui::ImageView magnifier() {
    constexpr double side = 28;
    const auto view = ui::ImageView::withImage(ui::Image::systemNamed(u"magnifyingglass"_ns));
    view.setFrame({{}, {side, side}});
    view.setContentMode(ui::ContentMode::center);
    view.setTintColor(ui::Color::secondaryLabel());
    return view;
}

} // namespace

ui::SearchBar SearchBar::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    constexpr double corner = 10;
    field_ = ui::TextField::withFrame({});
    field_.setBackgroundColor(ui::Color::named("tertiarySystemFillColor"));
    field_.layer().setCornerRadius(corner);
    field_.setClearButtonMode(ui::TextFieldViewMode::whileEditing);
    field_.send<"setLeftView:">(magnifier());
    field_.send<"setLeftViewMode:">(ui::TextFieldViewMode::always);
    field_.setDelegate(self());
    field_.addTarget(self(), objc::selector<"searchTextChanged">(),
                     ui::ControlEvents::editingChanged);
    self().addSubview(field_);
    return self();
}

void SearchBar::layoutSubviews() const {
    const CGSize size = self().bounds().size;
    const UIEdgeInsets safe = self().safeAreaInsets();
    const double left = safe.left + margin;
    field_.setFrame({{left, (size.height - fieldHeight) / 2},
                     {size.width - left - safe.right - margin, fieldHeight}});
}

CGSize SearchBar::sizeThatFits(CGSize room) const { return {room.width, barHeight}; }

bool SearchBar::pressedReturn(ui::TextField /*field*/) const {
    tell<"searchBarSearchButtonClicked:">(delegate_, self());
    return true;
}

void SearchBar::changed() const {
    tell<"searchBar:textDidChange:">(delegate_, self(), field_.text());
}

} // namespace desktop
