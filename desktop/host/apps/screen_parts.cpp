// Making the pieces.
#include "desktop/host/apps/screen_parts.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/screen.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/values/font.hpp"

namespace desktop::host {
namespace {

constexpr double cornerRadius = 12;

} // namespace

ui::Color pageColor() { return ui::Color::named("systemGroupedBackgroundColor"); }
ui::Color cardColor() { return ui::Color::named("secondarySystemGroupedBackgroundColor"); }
ui::Color separatorColor() { return ui::Color::named("separatorColor"); }

ui::Label following(ui::Label label, std::u16string_view style) {
    label.setFont(UIFont::preferred(style, screenTraits().contentSize));
    label.send<"setAdjustsFontForContentSizeCategory:">(true);
    return label;
}

ui::View cardWithFrame(CGRect frame) {
    const auto card = ui::View::withFrame(frame);
    card.setBackgroundColor(cardColor());
    card.layer().setCornerRadius(cornerRadius);
    card.setClipsToBounds(true);
    card.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    return card;
}

ui::View separatorWithFrame(CGRect frame) {
    const auto line = ui::View::withFrame(frame);
    line.setBackgroundColor(separatorColor());
    line.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    return line;
}

double addNavigationBar(ui::View page, std::string_view title) {
    constexpr double height = 96;
    const double width = page.bounds().size.width;
    const double top = ScreenGeometry::current().safeArea.top;
    const auto bar = ui::NavigationBar::withFrame({{0, top}, {width, height}});
    bar.setPrefersLargeTitles(true);
    bar.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    const auto items = ns::MutableArray::make();
    items.add(ui::NavigationItem::withTitle(ns::String::fromUtf8(title)));
    bar.setItems(items);
    page.addSubview(bar);
    return top + height;
}

void showInWindow(ui::ViewController controller) {
    static const auto* window =
        new objc::Strong(ui::Window::withFrame(ui::Screen::mainScreen().bounds()));
    window->setBackgroundColor(ui::Color::systemBackground());
    window->setRootViewController(controller);
    window->makeKeyAndVisible();
}

} // namespace desktop::host
