// Where the text may be taken to: the lists that the controller keeps for its tools.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/objc/part.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The titles of the targets that the preferences switch on, in the menu's order. A switch is on
/// when its value is the number 1.
[[nodiscard]] ns::Array shownTargets(ns::Dictionary preferences);

/// The name of each target's method, by the target's title.
[[nodiscard]] ns::Dictionary targetMethods();

/// What to offer for a link, by its scheme.
[[nodiscard]] ns::Dictionary linkTitles();

/// The lists, and the page that a target shows in the application.
class SearchTargets : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static SearchTargets& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"appList", &SearchTargets::shown_>(),
            objc::property<"appMethods", &SearchTargets::methods_>(),
            objc::property<"linkTitleDictionary", &SearchTargets::linkTitles_>(),
            objc::property<"webViewController", &SearchTargets::webViewController_>(),
            objc::property<"webView", &SearchTargets::webView_>(),
        };
    }

    /// Makes the lists.
    void begin(ns::Dictionary preferences) {
        shown_ = shownTargets(preferences);
        methods_ = targetMethods();
        linkTitles_ = toolbox::linkTitles();
    }

private:
    objc::Strong<ns::Array> shown_;
    objc::Strong<ns::Dictionary> methods_;
    objc::Strong<ns::Dictionary> linkTitles_;
    objc::Strong<ui::ViewController> webViewController_;
    objc::Strong<ui::View> webView_;
};

} // namespace wentra::toolbox
