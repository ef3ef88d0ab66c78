// The share sheet: its rows, and telling of what is shared.
#include "desktop/uikit/activity/activity_view_controller.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/foundation/url.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/image_view.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/main_queue.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

constexpr double margin = 16;
constexpr double barHeight = 52;
constexpr double rowHeight = 60;

/// What is shown of an item, and told if it is no picture: the text, the URL, or else the object's
/// description.
ns::String textOf(objc::Object item) {
    if (const auto url = item.as<ns::Url>(); url) {
        return url.absoluteString();
    }
    const auto text = item.as<ns::String>();
    return text ? text : item.send<"description", ns::String>();
}

ui::Image symbolOf(objc::Object item) {
    const auto name = item.as<ns::Url>()     ? u"doc"_ns
                      : item.as<ui::Image>() ? u"photo"_ns
                                             : u"textformat"_ns;
    return ui::Image::systemNamed(name);
}

void addRow(ui::View view, double top, objc::Object item) {
    constexpr double iconWidth = 32;
    const double width = view.bounds().size.width;
    const auto icon = ui::ImageView::withImage(symbolOf(item));
    icon.setFrame({{margin, top}, {iconWidth, rowHeight}});
    icon.setContentMode(ui::ContentMode::center);
    view.addSubview(icon);
    const double left = margin + iconWidth + margin / 2;
    const auto label = ui::Label::withFrame({{left, top}, {width - left - margin, rowHeight}});
    label.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    label.setNumberOfLines(2);
    label.setFont(ui::Font::system(15));
    label.setText(textOf(item));
    view.addSubview(label);
}

} // namespace

ui::ActivityViewController ActivityViewController::initWithItems(ns::Array items, ns::Array) {
    if (!items) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns, u"activity items must not be nil"_ns)
            .raise();
    }
    super<"init", ui::ViewController>();
    items_ = items;
    return self();
}

void ActivityViewController::viewDidLoad() {
    super<"viewDidLoad">();
    content_ = ui::View::withFrame(self().view().bounds());
    self().view().addSubview(content_);
    addBar(content_);
    double top = barHeight;
    for (const objc::Object item : items_) {
        addRow(content_, top, item);
        top += rowHeight;
    }
}

void ActivityViewController::addBar(ui::View view) {
    const double width = view.bounds().size.width;
    const auto title = ui::Label::withFrame({{0, 0}, {width, barHeight}});
    title.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    title.setFont(ui::Font::system(17, ui::Font::semibold));
    title.setTextAlignment(ui::TextAlignment::center);
    title.setText(u"分享"_ns);
    view.addSubview(title);
    const auto close = ui::Button::withType(ui::ButtonType::system);
    close.setTitle(u"关闭"_ns, ui::ControlState::normal);
    close.titleLabel().setFont(ui::Font::system(17));
    const double closeWidth = close.sizeThatFits({}).width;
    close.setFrame({{width - margin - closeWidth, 0}, {closeWidth, barHeight}});
    close.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin);
    close.addTarget(self(), objc::selector<"closePressed">(), ui::ControlEvents::touchUpInside);
    view.addSubview(close);
}

void ActivityViewController::viewDidLayoutSubviews() {
    super<"viewDidLayoutSubviews">();
    const UIEdgeInsets safe = self().view().safeAreaInsets();
    const CGSize size = self().view().bounds().size;
    content_.setFrame({{safe.left, 0}, {size.width - safe.left - safe.right, size.height}});
}

void ActivityViewController::viewWillAppear(bool animated) {
    super<"viewWillAppear:">(animated);
    const auto told = ns::MutableArray::make();
    for (const objc::Object item : items_) {
        told.add(item.as<ui::Image>() ? item : textOf(item));
    }
    EventLog::shared().record("share", ns::Dictionary::withObject(told, u"items"_ns));
}

void ActivityViewController::closePressed() {
    const objc::Strong<ui::ActivityViewController> kept = self();
    kept.dismiss(true);
    MainQueue::shared().add([kept] {
        if (const auto& completion = of(kept).completion_; completion) {
            completion(nullptr, false, nullptr, nullptr);
        }
    });
}

} // namespace desktop
