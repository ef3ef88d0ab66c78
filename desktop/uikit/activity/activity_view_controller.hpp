// UIActivityViewController: the sheet for sharing things. It shows what would be shared, and tells
// whoever watches.
#pragma once

#include "bindings/uikit/activity_view_controller.hpp"

#include "desktop/class.hpp"

namespace desktop {

class ActivityViewController
    : public PlatformClass<ActivityViewController, ui::ActivityViewController> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithActivityItems:applicationActivities:",
                         &ActivityViewController::initWithItems>(),
            objc::property<"excludedActivityTypes", &ActivityViewController::excluded_>(),
            objc::property<"completionWithItemsHandler", &ActivityViewController::completion_>(),
            objc::method<"viewDidLoad", &ActivityViewController::viewDidLoad>(),
            objc::method<"viewDidLayoutSubviews", &ActivityViewController::viewDidLayoutSubviews>(),
            objc::method<"viewWillAppear:", &ActivityViewController::viewWillAppear>(),
            objc::method<"closePressed", &ActivityViewController::closePressed>(),
        };
    }

private:
    ui::ActivityViewController initWithItems(ns::Array items, ns::Array activities);
    void viewDidLoad();
    void addBar(ui::View view);
    void viewDidLayoutSubviews();
    void viewWillAppear(bool animated);
    void closePressed();

    /// Holds everything, clear of the notch.
    objc::Strong<ui::View> content_;
    objc::Copied<ns::Array> items_;
    objc::Copied<ns::Array> excluded_;
    objc::Copied<ui::ActivityViewController::CompletionWithItems> completion_;
};

} // namespace desktop
