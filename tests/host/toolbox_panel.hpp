// The toolbox panel's body in the host, with the library loaded.
#pragma once

#include "tests/support/host_process.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tests {

using Json = nlohmann::json;

/// A controller of its own in the window of an application, as the panel holds one.
class ToolboxPanel : public support::HostProcess {
public:
    explicit ToolboxPanel(const Json& preferences = Json::object())
        : HostProcess(HOST_PATH, {"--app", "chat", "--automation"}) {
        setPreferences(preferences);
        controller_ = message({{"class", "ZKFloatingViewController"}}, "new");
        window_ = result({{"do", "tree"}}).at(0);
        message(window_, "addSubview:", {view()});
        message(window_, "layoutIfNeeded");
    }

    /// The answer of the controller.
    Json panel(const std::string& selector, std::initializer_list<Json> arguments = {}) {
        return message(controller_, selector, arguments);
    }
    Json view() { return panel("view"); }
    [[nodiscard]] const Json& controller() const { return controller_; }
    [[nodiscard]] const Json& window() const { return window_; }

    void setPreferences(const Json& values) { result({{"do", "preferences"}, {"set", values}}); }
    Json preferences() { return result({{"do", "preferences"}}); }
    void advance(double seconds) { result({{"do", "advance"}, {"seconds", seconds}}); }

    /// What a view looks like.
    Json node(const Json& view) { return result({{"do", "tree"}, {"of", view}}); }
    /// The one visible view with that title.
    Json titled(const std::string& title) {
        const Json found =
            result({{"do", "find"}, {"where", {{"title", title}, {"visible", true}}}});
        EXPECT_EQ(found.size(), 1U) << title;
        return found.empty() ? Json() : found.at(0);
    }
    void tap(const std::string& title) { result({{"do", "tap"}, {"on", titled(title)}}); }
    void press(const std::string& title, double seconds) {
        result({{"do", "press"}, {"on", titled(title)}, {"seconds", seconds}});
    }

    /// How often the pasteboard has been written.
    long pasteboardChanges() {
        return message(message({{"class", "UIPasteboard"}}, "generalPasteboard"), "changeCount");
    }
    /// The exceptions that were kept from the host since the last question.
    std::vector<Json> swallowed() {
        std::vector<Json> exceptions;
        for (const Json& event : result({{"do", "events"}})) {
            if (event["kind"] == "exception") {
                exceptions.push_back(event);
            }
        }
        return exceptions;
    }

private:
    Json controller_;
    Json window_;
};

} // namespace tests
