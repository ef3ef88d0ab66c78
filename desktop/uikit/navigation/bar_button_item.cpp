// Bar button items: what the system's look like, and sending their actions.
#include "desktop/uikit/navigation/bar_button_item.hpp"

#include "bindings/uikit/bar_button_item.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace desktop {
namespace {

using namespace ns::literals;
using System = ui::BarButtonSystemItem;

struct SystemLook {
    System item;
    /// Empty for a symbol.
    std::u16string_view title;
    std::u16string_view symbol;
};

constexpr std::array<SystemLook, 22> systemLooks{{
    {System::done, u"完成", u""},
    {System::cancel, u"取消", u""},
    {System::edit, u"编辑", u""},
    {System::save, u"存储", u""},
    {System::undo, u"撤销", u""},
    {System::redo, u"重做", u""},
    {System::add, u"", u"plus"},
    {System::compose, u"", u"square.and.pencil"},
    {System::reply, u"", u"arrowshape.turn.up.left"},
    {System::action, u"", u"square.and.arrow.up"},
    {System::organize, u"", u"folder"},
    {System::bookmarks, u"", u"book"},
    {System::search, u"", u"magnifyingglass"},
    {System::refresh, u"", u"arrow.clockwise"},
    {System::stop, u"", u"xmark"},
    {System::camera, u"", u"camera"},
    {System::trash, u"", u"trash"},
    {System::play, u"", u"play.fill"},
    {System::pause, u"", u"pause.fill"},
    {System::rewind, u"", u"backward.fill"},
    {System::fastForward, u"", u"forward.fill"},
    {System::close, u"", u"xmark.circle.fill"},
}};

bool isSpace(System item) { return item == System::flexibleSpace || item == System::fixedSpace; }

constexpr double titleSize = 17;

} // namespace

std::vector<objc::MethodRow> BarButtonItem::methods() {
    return {
        objc::method<"initWithTitle:style:target:action:", &BarButtonItem::initWithTitle>(),
        objc::method<"initWithImage:style:target:action:", &BarButtonItem::initWithImage>(),
        objc::method<"initWithBarButtonSystemItem:target:action:",
                     &BarButtonItem::initWithSystemItem>(),
        objc::method<"initWithCustomView:", &BarButtonItem::initWithCustomView>(),
        objc::property<"title", &BarButtonItem::title_, &BarButtonItem::contentChanged>(),
        objc::property<"image", &BarButtonItem::image_, &BarButtonItem::contentChanged>(),
        objc::property<"tintColor", &BarButtonItem::tintColor_, &BarButtonItem::contentChanged>(),
        objc::property<"customView", &BarButtonItem::customView_>(),
        objc::property<"style", &BarButtonItem::style_, &BarButtonItem::contentChanged>(),
        objc::property<"target", &BarButtonItem::target_>(),
        objc::property<"action", &BarButtonItem::action_>(),
        objc::property<"width", &BarButtonItem::width_>(),
        objc::property<"tag", &BarButtonItem::tag_>(),
        objc::flag<"enabled", &BarButtonItem::enabled_, &BarButtonItem::contentChanged>(),
        objc::method<"view", &BarButtonItem::view>(),
        objc::method<"pressed", &BarButtonItem::pressed>(),
    };
}

ui::BarButtonItem BarButtonItem::initWithTitle(ns::String title, ui::BarButtonStyle style,
                                               objc::Object target, SEL action) {
    title_ = title;
    style_ = style;
    act(target, action);
    return self();
}

ui::BarButtonItem BarButtonItem::initWithImage(ui::Image image, ui::BarButtonStyle style,
                                               objc::Object target, SEL action) {
    image_ = image;
    style_ = style;
    act(target, action);
    return self();
}

ui::BarButtonItem BarButtonItem::initWithSystemItem(System item, objc::Object target, SEL action) {
    systemItem_ = item;
    if (const auto* look = std::ranges::find(systemLooks, item, &SystemLook::item);
        look != systemLooks.end()) {
        title_ = look->title.empty() ? ns::String() : ns::String::from(look->title);
        image_ = look->symbol.empty() ? ui::Image()
                                      : ui::Image::systemNamed(ns::String::from(look->symbol));
    }
    const bool isFinal = item == System::done || item == System::save;
    style_ = isFinal ? ui::BarButtonStyle::done : ui::BarButtonStyle::plain;
    act(target, action);
    return self();
}

ui::BarButtonItem BarButtonItem::initWithCustomView(ui::View view) {
    customView_ = view;
    return self();
}

void BarButtonItem::act(objc::Object target, SEL action) {
    target_ = target;
    action_ = action;
}

ui::View BarButtonItem::view() {
    if (customView_ || isSpace(systemItem_)) {
        return customView_;
    }
    if (!button_) {
        button_ = ui::Button::withType(ui::ButtonType::system);
        button_.addTarget(self(), objc::selector<"pressed">(), ui::ControlEvents::touchUpInside);
        contentChanged();
    }
    return button_;
}

void BarButtonItem::contentChanged() {
    if (!button_) {
        return;
    }
    const bool bold = style_ == ui::BarButtonStyle::done;
    button_.titleLabel().setFont(
        ui::Font::system(titleSize, bold ? ui::Font::semibold : ui::Font::regular));
    button_.setTitle(image_ ? ns::String() : static_cast<ns::String>(title_),
                     ui::ControlState::normal);
    button_.setImage(image_, ui::ControlState::normal);
    button_.setEnabled(enabled_);
    button_.setAccessibilityLabel(title_);
    if (tintColor_) {
        button_.setTintColor(tintColor_);
    }
    button_.superview().setNeedsLayout();
}

double BarButtonItem::width(double barHeight) {
    if (const ui::View shown = view(); shown && width_ <= 0) {
        const CGSize own = shown.bounds().size;
        return customView_ && own.width > 0 ? own.width : shown.sizeThatFits({0, barHeight}).width;
    }
    return std::max(0.0, width_);
}

void BarButtonItem::pressed() {
    const objc::Strong<ui::BarButtonItem> kept = self();
    auto target = static_cast<objc::Object>(target_).assume<ui::Responder>();
    for (ui::Responder next = button_; !target && next; next = next.nextResponder()) {
        target = next.respondsToSelector(action_) ? next : ui::Responder();
    }
    if (action_ == nullptr || !target) {
        return;
    }
    if (std::string_view(sel_getName(action_)).find(':') == std::string_view::npos) {
        objc::sendTo(target.raw(), action_);
    } else {
        objc::sendTo(target.raw(), action_, kept.raw());
    }
}

} // namespace desktop
