// Laying the list out beside its view, and choosing by touch.
#include "desktop/uikit/contextmenus/context_menu_view.hpp"

#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/contextmenus/action.hpp"

#include <algorithm>

namespace desktop {
namespace {

// Points, as on the phone.
constexpr double listWidth = 250;
constexpr double rowHeight = 44;
constexpr double titleHeight = 32;
constexpr double corner = 13;
constexpr double margin = 16;
constexpr double gap = 8;
constexpr double symbolSize = 22;
constexpr double hairline = 1.0 / 3;

objc::Weak<ContextMenuViewKind>& current() {
    static auto* view = new objc::Weak<ContextMenuViewKind>;
    return *view;
}

ui::Color plain() { return ui::Color::named("secondarySystemGroupedBackgroundColor"); }

ui::Label labelWith(CGRect frame, ns::String text, double size, ui::Color colour) {
    const auto label = ui::Label::withFrame(frame);
    label.setText(text);
    label.setFont(ui::Font::system(size));
    label.setTextColor(colour);
    return label;
}

} // namespace

void ContextMenuView::show(ui::Menu menu, ui::ViewController preview, ui::View beside) {
    hide();
    const ui::Window window = beside.window();
    const auto view = ContextMenuViewKind::make<"initWithFrame:">(window.bounds());
    view.setBackgroundColor(ui::Color::black().withAlphaComponent(0.3));
    view.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    of(view).beside_ = beside.convertRect(beside.bounds(), nullptr);
    of(view).build(menu, preview);
    window.addSubview(view);
    view.layoutIfNeeded();
    current() = view;
}

ui::Menu ContextMenuView::shown() {
    const auto view = current().strong();
    return view && view.superview() ? static_cast<ui::Menu>(of(view).menu_) : ui::Menu();
}

void ContextMenuView::hide() {
    if (const auto view = current().strong(); view) {
        view.removeFromSuperview();
        current() = ContextMenuViewKind();
    }
}

void ContextMenuView::choose(ui::MenuElement element) {
    const objc::Strong<ui::MenuElement> chosen = element;
    hide();
    if (const auto action = chosen.as<ui::Action>(); action) {
        Action::of(action).perform();
    }
}

void ContextMenuView::build(ui::Menu menu, ui::ViewController preview) {
    menu_ = menu;
    preview_ = preview;
    list_ = ui::ScrollView::withFrame({});
    list_.setBackgroundColor(plain());
    addRounded(list_);
    double top = addTitle();
    for (const ui::MenuElement element : menu.children()) {
        rows_.push_back({element, rowFor(element, top)});
        list_.addSubview(rows_.back().view);
        top += rowHeight;
    }
    list_.setContentSize({listWidth, top});
    if (preview) {
        addRounded(preview.view());
    }
}

void ContextMenuView::addRounded(ui::View part) const {
    part.setClipsToBounds(true);
    part.layer().setCornerRadius(corner);
    self().addSubview(part);
}

/// Where what is below the title begins.
double ContextMenuView::addTitle() const {
    if (menu_.title().length() == 0) {
        return 0;
    }
    const auto title = labelWith({{margin, 0}, {listWidth - 2 * margin, titleHeight}},
                                 menu_.title(), 12, ui::Color::secondaryLabel());
    title.setTextAlignment(ui::TextAlignment::center);
    list_.addSubview(title);
    return titleHeight;
}

ui::View ContextMenuView::rowFor(ui::MenuElement element, double top) const {
    const auto row = ui::View::withFrame({{0, top}, {listWidth, rowHeight}});
    row.addSubview(labelWith({{margin, 0}, {listWidth - 3 * margin - symbolSize, rowHeight}},
                             element.title(), 17, ui::Color::label()));
    const auto symbol = ui::ImageView::withImage(element.image());
    symbol.setContentMode(ui::ContentMode::scaleAspectFit);
    symbol.setTintColor(ui::Color::label());
    symbol.setFrame({{listWidth - margin - symbolSize, (rowHeight - symbolSize) / 2},
                     {symbolSize, symbolSize}});
    row.addSubview(symbol);
    const auto line = ui::View::withFrame({{0, 0}, {listWidth, top > 0 ? hairline : 0}});
    line.setBackgroundColor(ui::Color::named("separatorColor"));
    row.addSubview(line);
    return row;
}

/// Below the view, or above it where there is more room; over it where neither has enough. A list
/// that is higher than the screen scrolls.
void ContextMenuView::layoutSubviews() {
    const CGRect room = self().bounds();
    const UIEdgeInsets safe = self().safeAreaInsets();
    const double least = safe.top + gap;
    const double foot = room.size.height - safe.bottom - gap;
    const double height = std::min(list_.contentSize().height, foot - least);
    const double most = foot - height;
    const double below = beside_.origin.y + beside_.size.height + gap;
    const double above = beside_.origin.y - gap - height;
    const double y = std::max(least, below <= most ? below : above >= least ? above : most);
    const double right = room.size.width - safe.right - gap - listWidth;
    const double x = std::max(safe.left + gap, std::min(beside_.origin.x, right));
    list_.setFrame({{x, y}, {listWidth, height}});
    placePreview({x, y}, least);
}

/// Above the list, as far as there is room below `top`.
void ContextMenuView::placePreview(CGPoint list, double top) const {
    const CGSize wanted = preview_.preferredContentSize();
    const double width = wanted.width > 0 ? wanted.width : listWidth;
    const double room = list.y - gap - top;
    const double height = std::min(wanted.height > 0 ? wanted.height : listWidth, room);
    preview_.view().setFrame({{list.x, list.y - gap - height}, {width, std::max(0.0, height)}});
}

std::optional<std::size_t> ContextMenuView::rowAt(ns::SetOf<ui::Touch> touches) const {
    const auto touch = touches.allObjects().first();
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        const ui::View row = rows_[index].view;
        if (row.pointInside(touch.locationIn(row), nullptr)) {
            return index;
        }
    }
    return std::nullopt;
}

void ContextMenuView::highlight(std::optional<std::size_t> row) const {
    for (std::size_t index = 0; index < rows_.size(); ++index) {
        rows_[index].view.setBackgroundColor(index == row ? ui::Color::named("systemGray4Color")
                                                          : ui::Color::clear());
    }
}

void ContextMenuView::touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event) {
    highlight(rowAt(touches));
}

void ContextMenuView::touchesEnded(ns::SetOf<ui::Touch> touches, ui::Event) {
    highlight(std::nullopt);
    const auto touch = touches.allObjects().first();
    if (const auto row = rowAt(touches); row) {
        choose(rows_[*row].element);
    } else if (!list_.pointInside(touch.locationIn(list_), nullptr)) {
        hide();
    }
}

} // namespace desktop
