// ZKFloatingViewController: the toolbox panel's body, the word grid and the tools' buttons.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/foundation/url_session.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace wentra::toolbox {

/// A handle of the controller, with what others send it. What it consists of is in its parts, each
/// in the file of its subject. Main thread only.
struct FloatingViewController
    : objc::Kind<FloatingViewController, "ZKFloatingViewController", ui::ViewController> {
    using Kind::Kind;

    /// Shows other tokens, strings; what is picked stays.
    void updateWordsArray(ns::Array words) const { send<"updateWordsArray:">(words); }
    /// The picked tokens in the order in which they were picked; nil before the view is loaded.
    [[nodiscard]] ns::MutableArray selectedWords() const {
        return send<"selectedWords", ns::MutableArray>();
    }
    /// The addresses of all links in the text, each once; none for nil. Any thread.
    [[nodiscard]] ns::Array linksInString(ns::String text) const {
        return send<"linksInString:", ns::Array>(text);
    }
    /// Loads the file with that session and shares it, without showing progress. Nothing for nil.
    void downloadWithUrl(ns::String address, ns::UrlSession session) const {
        send<"downloadWithUrl:session:">(address, session);
    }
    /// Translates the text and shows the result over the host; the controller's view need not be
    /// loaded.
    void translateText(ns::String text) const { send<"translateText:">(text); }
    /// Shows the text with its pinyin over the host; the controller's view need not be loaded.
    void shareText(ns::String text) const { send<"shareText:">(text); }
};

/// Declares the class.
[[gnu::cold]] void registerFloatingViewController();

} // namespace wentra::toolbox
