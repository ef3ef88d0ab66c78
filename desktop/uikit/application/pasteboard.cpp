// The general pasteboard.
#include "desktop/uikit/application/pasteboard.hpp"

#include "bindings/foundation/notification_center.hpp"

namespace desktop {

using namespace ns::literals;

ui::Pasteboard Pasteboard::generalPasteboard(Class) {
    static const auto* general = new objc::Strong(ui::Pasteboard::make());
    return *general;
}

void Pasteboard::setString(ns::String string) {
    string_ = string;
    image_ = nullptr;
    announce();
}

void Pasteboard::setImage(ui::Image image) {
    image_ = image;
    string_ = nullptr;
    announce();
}

void Pasteboard::announce() {
    ++changeCount_;
    ns::NotificationCenter::defaultCenter().post(u"UIPasteboardChangedNotification"_ns, self());
}

} // namespace desktop
