// What the tools show.
#pragma once

#include "bindings/foundation/url.hpp"
#include "bindings/objc/part.hpp"
#include "bindings/objc/weak.hpp"
#include "bindings/uikit/alert_controller.hpp"
#include "bindings/uikit/button.hpp"
#include "library/utilities/umaca_table_view_controller.hpp"

#include <string_view>

namespace wentra::utilities {

/// Screens, alerts and sheets of the tools. While a chosen row's tool runs they wait until the list
/// has gone: what is presented over the list would go with it.
class ToolScreens : public objc::Part<UmacaTableViewController> {
public:
    using Part::Part;
    static ToolScreens& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"webViewController", &ToolScreens::screen_>(),
            objc::property<"closeButton", &ToolScreens::closeButton_>(),
            objc::method<"presentWebViewControllerWithURL:", &ToolScreens::showPage>(),
            objc::method<"closeButtonPressed:", &ToolScreens::close>(),
            objc::method<"showErrorAlertWithMessage:", &ToolScreens::tell>(),
        };
    }

    /// Runs a tool, takes the list off the screen, and shows what the tool has shown meanwhile.
    template <class Tool>
    void runAndLeave(Tool tool) {
        holds_ = true;
        objc::contained("a utility", tool);
        holds_ = false;
        leave();
    }

    /// Above everything, animated; from the list where there is nothing else.
    void show(ui::ViewController screen);
    /// Offers a text, a URL, …
    void share(objc::Object item);
    void showPage(ns::Url url);
    /// In an alert over the list. One is enough: while one is shown or waits, others are dropped.
    void showError(std::u16string_view message);

    /// An empty screen that is shown by `showScreen`, in the place of any former.
    ui::View newScreen();
    /// Ends the screen; `lift` is how far above the screen's bottom it lies, in points.
    void addCloseButton(ns::String title, double lift);
    void showScreen() { show(screen_); }

private:
    void close(objc::Object sender);
    void tell(ns::String message);
    void leave();
    void showHeld();

    objc::Weak<ui::ViewController> screen_; ///< it keeps this controller: its buttons need it
    objc::Strong<ui::Button> closeButton_;
    objc::Strong<ns::MutableArray> held_ = ns::MutableArray::make();
    bool holds_ = false;
};

} // namespace wentra::utilities
