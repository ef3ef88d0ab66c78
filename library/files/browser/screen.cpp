// Builds the screen.
#include "library/files/browser/screen.hpp"

#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/layout_item.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/navigation_item.hpp"
#include "bindings/uikit/screen.hpp"
#include "library/common/animated.hpp"
#include "library/common/bar_items.hpp"
#include "library/common/gestures.hpp"
#include "library/common/light_background.hpp"
#include "library/paths/resources.hpp"

namespace wentra::files {
namespace {

using namespace ns::literals;

ui::Label captionWith(ns::String title) {
    constexpr double size = 10;
    const auto caption = ui::Label::withFrame({{8.6, 43}, {35, 20}});
    caption.setText(title);
    caption.setTextColor(ui::Color::black());
    caption.setTextAlignment(ui::TextAlignment::center);
    caption.setFont(ui::Font::system(size));
    return caption;
}

ui::ImageView iconFor(ns::String title) {
    const auto path = ns::String::fromUtf8(paths::iconPath(title.utf8()));
    const auto icon = ui::ImageView::withImage(ui::Image::withContentsOfFile(path));
    icon.setFrame({{8.8, 4}, {35, 35}});
    return icon;
}

} // namespace

void Screen::build() {
    addTitle();
    self().navigationItem().setLeftBarButtonItem(ui::BarButtonItem::withTitle(
        u"返回"_ns, ui::BarButtonStyle::plain, self(), objc::selector<"backButtonPressed:">()));
    const ui::Toolbar toolbar = addToolbar();
    addTables(toolbar);
    self().view().bringSubviewToFront(toolbar); // its icons reach above it
}

void Screen::addTitle() {
    constexpr double size = 12;
    titleLabel_ = ui::Label::make();
    titleLabel_.setFont(ui::Font::system(size));
    titleLabel_.setNumberOfLines(0);
    titleLabel_.setText(u"QF文件管理器"_ns);
    self().navigationItem().setTitleView(titleLabel_);
}

/// The toolbar's captions are black and reach below it: there is something light under them.
void Screen::addFoot(ui::Toolbar toolbar) const {
    const auto foot = ui::View::make();
    const ui::LayoutItem page(self().view());
    setLightBackground(foot, ui::Color::white());
    self().view().addSubview(foot);
    const auto placed = ui::constrained(foot);
    placed.top().equalTo(ui::LayoutItem(toolbar).top()).activate();
    placed.leading().equalTo(page.leading()).activate();
    placed.trailing().equalTo(page.trailing()).activate();
    placed.bottom().equalTo(page.bottom()).activate();
}

ui::Toolbar Screen::addToolbar() const {
    const auto toolbar = ui::Toolbar::make();
    const ui::View page = self().view();
    page.addSubview(toolbar);
    addFoot(toolbar);
    const auto safe = ui::LayoutItem::safeAreaOf(page);
    const auto placed = ui::constrained(toolbar);
    placed.leading().equalTo(safe.leading()).activate();
    placed.trailing().equalTo(safe.trailing()).activate();
    placed.bottom().equalTo(safe.bottom()).activate();
    setLightBackground(toolbar, ui::Color::white());
    toolbar.setItems(toolbarItems());
    return toolbar;
}

ns::Array Screen::toolbarItems() const {
    // The actions of the two sorts are called as if they selected.
    return spread(std::array{
        barItem(u"关闭"_ns, objc::selector<"closeButtonTapped">()),
        barItem(u"日期"_ns, objc::selector<"selectAllLeftButtonTapped">()),
        barItem(u"大小"_ns, objc::selector<"selectAllRightButtonTapped">()),
        barItem(u"新建"_ns, objc::selector<"createNewFileOrFolder">()),
        barItem(u"收藏"_ns, objc::selector<"favoriteFileButtonTapped">()),
        barItem(u"切换"_ns, objc::selector<"switchWindowButtonTapped">()),
    });
}

ui::BarButtonItem Screen::barItem(ns::String title, SEL action) const {
    const auto view = ui::View::withFrame({{5, 0}, {55, 60}});
    view.addSubview(iconFor(title));
    view.addSubview(captionWith(title));
    addTap(view, self(), action);
    return ui::BarButtonItem::withCustomView(view);
}

void Screen::addTables(ui::Toolbar toolbar) {
    const auto container = ui::View::make();
    const ui::View page = self().view();
    page.addSubview(container);
    const auto safe = ui::LayoutItem::safeAreaOf(page);
    const auto room = ui::constrained(container);
    room.top().equalTo(safe.top()).activate();
    room.bottom().equalTo(ui::LayoutItem(toolbar).top()).activate();
    room.leading().equalTo(safe.leading()).activate();
    room.trailing().equalTo(safe.trailing()).activate();

    const ui::TableView first = addTable(container);
    panes_.setTables(first, addTable(container));
    const ui::LayoutItem left(panes_.left());
    const ui::LayoutItem right(panes_.right());
    const double half = ui::Screen::mainScreen().bounds().size.width / 2;
    left.leading().equalTo(room.leading()).activate();
    left.width().equalTo(half).activate();
    right.leading().equalTo(left.trailing()).activate();
    right.trailing().equalTo(room.trailing()).activate();
}

ui::TableView Screen::addTable(ui::View container) const {
    const auto table = ui::TableView::withFrame({}, ui::TableViewStyle::plain);
    container.addSubview(table);
    const auto placed = ui::constrained(table);
    placed.top().equalTo(ui::LayoutItem(container).top()).activate();
    placed.bottom().equalTo(ui::LayoutItem(container).bottom()).activate();
    table.setDataSource(self());
    table.setDelegate(self());
    constexpr double shortly = 0.2;
    addPress(table, self(), objc::selector<"handleLongPress:">(), shortly);
    addSwipe(table, self(), objc::selector<"backButtonPressed:">(),
             ui::SwipeGestureRecognizerDirection::right);
    return table;
}

void Screen::close() const { self().dismiss(animated); }

} // namespace wentra::files
