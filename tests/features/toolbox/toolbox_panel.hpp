// The toolbox panel's body in the host, with the library loaded.
#pragma once

#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tests {

/// A controller of its own in the window of an application, as the panel holds one.
class ToolboxPanel : public Phone {
public:
    explicit ToolboxPanel(const Json& preferences = Json::object(),
                          std::vector<std::string> options = {"--app", "chat"})
        : Phone(std::move(options)) {
        set(preferences);
        controller_ = message({{"class", "ZKFloatingViewController"}}, "new");
        window_ = Phone::window();
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

    Json preferences() { return result({{"do", "preferences"}}); }

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

    Json pathOf(long row) {
        return message({{"class", "NSIndexPath"}}, "indexPathForItem:inSection:", {row, 0});
    }
    /// Shows these words and picks all of them.
    void pick(const Json& words) {
        panel("updateWordsArray:", {words});
        const Json grid = panel("wordsCollectionView");
        message(grid, "layoutIfNeeded");
        for (long row = 0; row < static_cast<long>(words.size()); ++row) {
            message(grid,
                    "selectItemAtIndexPath:animated:scrollPosition:", {pathOf(row), false, 0});
            panel("collectionView:didSelectItemAtIndexPath:", {grid, pathOf(row)});
        }
    }

    /// How often the pasteboard has been written.
    long pasteboardChanges() {
        return message(message({{"class", "UIPasteboard"}}, "generalPasteboard"), "changeCount");
    }

private:
    Json controller_;
    Json window_;
};

} // namespace tests
