// Where the library's views and screens are put.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra {

/// The application's first window, or nil.
[[nodiscard]] ui::Window firstWindow();

/// The first of the application's windows that is the key window, or nil.
[[nodiscard]] ui::Window keyWindow();

/// The first window of the first connected scene that is active in the foreground, or nil.
[[nodiscard]] ui::Window activeWindow();

/// What is presented last above the active window's root controller and is there to stay, or nil.
[[nodiscard]] ui::ViewController topViewController();

/// Presents an action or share sheet from that controller, animated. Tablets show sheets as
/// popovers and raise without a place to point at: the middle of the controller's view, if the
/// sheet has none of its own. The completion is called once the sheet is there.
void presentSheet(ui::ViewController sheet, ui::ViewController controller,
                  ui::ViewController::Completion completion = {});

/// What a controller's peer lists to answer where its screens come up:
///
///     objc::method<"getWindow", &ScreenLookups::window>(),
///     objc::method<"getCurrentViewController", &ScreenLookups::controller>(),
class ScreenLookups {
public:
    static constexpr objc::Boundary border = objc::Boundary::contained;
    /// It has no state: one serves every controller.
    static ScreenLookups& of(objc::Object controller);

    [[nodiscard]] ui::Window window() const { return activeWindow(); }
    [[nodiscard]] ui::Window first() const { return firstWindow(); }
    [[nodiscard]] ui::ViewController controller() const { return topViewController(); }
};

} // namespace wentra
