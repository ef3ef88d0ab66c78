// Alerts and screens, as a script sees them.
#include "tests/host/host.hpp"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;

class ControllerCommands : public testing::Test {
protected:
    ControllerCommands() {
        const json window = host.message(
            host.message({{"class", "UIApplication"}}, "sharedApplication"), "keyWindow");
        root = host.message(window, "rootViewController");
    }
    json alertWith(const char* title, int style) {
        return host.message(
            {{"class", "UIAlertController"}},
            "alertControllerWithTitle:message:preferredStyle:", {title, "message", style});
    }
    void addAction(const json& alert, const char* title, int style) {
        host.message(alert, "addAction:",
                     {host.message({{"class", "UIAlertAction"}},
                                   "actionWithTitle:style:handler:", {title, style, nullptr})});
    }
    void present(const json& controller) { present(controller, root); }
    void present(const json& controller, const json& presenter) {
        host.message(presenter,
                     "presentViewController:animated:completion:", {controller, true, nullptr});
    }
    json fresh() { return host.message({{"class", "UIViewController"}}, "new"); }
    /// A controller that nobody contains or presents: only its view lies in the window.
    json outsider() {
        const json controller = fresh();
        host.message(host.message(root, "view"), "addSubview:", {host.message(controller, "view")});
        return controller;
    }
    json alertTitle() {
        const json alert = host.result({{"do", "alert"}});
        return alert.is_null() ? alert : alert.at("title");
    }
    json screens() { return host.result({{"do", "screens"}}); }

    support::HostProcess host = tests::automatedHost({"--app", "notes"});
    json root;
};

TEST_F(ControllerCommands, AnAlertIsDescribedFilledAndChosen) {
    EXPECT_EQ(host.result({{"do", "alert"}}), nullptr);
    const json alert = alertWith("Sure?", 1);
    host.message(alert, "addTextFieldWithConfigurationHandler:", {nullptr});
    addAction(alert, "OK", 0);
    addAction(alert, "Remove", 2);
    addAction(alert, "Cancel", 1);
    present(alert);
    EXPECT_EQ(host.result({{"do", "alert"}}),
              (json{{"style", "alert"},
                    {"title", "Sure?"},
                    {"message", "message"},
                    {"fields", {{{"placeholder", nullptr}, {"text", ""}}}},
                    {"actions",
                     {{{"title", "OK"}, {"style", "default"}},
                      {{"title", "Remove"}, {"style", "destructive"}},
                      {{"title", "Cancel"}, {"style", "cancel"}}}}}));
    EXPECT_NE(host.error({{"do", "alert"}, {"choose", "Other"}}), "");
    EXPECT_NE(host.error({{"do", "alert"}, {"fields", {"a", "b"}}}), "");
    EXPECT_NE(host.error({{"do", "alert"}, {"fields", {1}}}), "");
    const json fields = host.message(alert, "textFields");
    const json before = host.result({{"do", "alert"}, {"choose", "OK"}, {"fields", {"typed"}}});
    EXPECT_EQ(before.at("fields").at(0).at("text"), "typed");
    EXPECT_EQ(host.message(fields.at(0), "text"), "typed");
    EXPECT_EQ(host.result({{"do", "alert"}}), nullptr);
    EXPECT_NE(host.error({{"do", "alert"}, {"choose", "OK"}}), "");
}

TEST_F(ControllerCommands, AnAlertWithAFieldStandsAboveTheKeyboard) {
    const json alert = alertWith("Name", 1);
    host.message(alert, "addTextFieldWithConfigurationHandler:", {nullptr});
    addAction(alert, "OK", 0);
    present(alert);
    host.result({{"do", "advance"}, {"seconds", 1}});
    const json rect = host.result({{"do", "tree"}, {"of", host.message(alert, "view")}}).at("rect");
    const double bottom = rect.at(1).get<double>() + rect.at(3).get<double>();
    EXPECT_LT(bottom, 844 - 336);
    host.result({{"do", "key"}, {"name", "hide"}});
    host.result({{"do", "advance"}, {"seconds", 1}});
    const json lower =
        host.result({{"do", "tree"}, {"of", host.message(alert, "view")}}).at("rect");
    EXPECT_NEAR(lower.at(1).get<double>(), (844 - lower.at(3).get<double>()) / 2, 0.5);
}

TEST_F(ControllerCommands, ADisabledActionIsRefused) {
    const json sheet = alertWith("Sheet", 0);
    addAction(sheet, "Off", 0);
    present(sheet);
    EXPECT_EQ(host.result({{"do", "alert"}}).at("style"), "actionSheet");
    host.message(host.message(sheet, "actions").at(0), "setEnabled:", {false});
    EXPECT_NE(host.error({{"do", "alert"}, {"choose", "Off"}}), "");
}

TEST_F(ControllerCommands, ScreensArePushedAndPresentedAlike) {
    EXPECT_EQ(host.result({{"do", "screens"}}), json::array({"UIViewController"}));
    const json navigation =
        host.message(host.message({{"class", "UINavigationController"}}, "alloc"),
                     "initWithRootViewController:", {fresh()});
    present(navigation);
    host.message(navigation, "pushViewController:animated:", {fresh(), true});
    const json alert = alertWith("Front", 1);
    host.message(navigation, "presentViewController:animated:completion:", {alert, true, nullptr});
    EXPECT_EQ(host.result({{"do", "screens"}}),
              json::array({"UIViewController", "UINavigationController", "UIViewController",
                           "UIViewController", "UIAlertController"}));
    host.message(root, "dismissViewControllerAnimated:completion:", {true, nullptr});
    EXPECT_EQ(host.result({{"do", "screens"}}), json::array({"UIViewController"}));
    host.result({{"do", "advance"}, {"seconds", 1}});
    EXPECT_EQ(host.result({{"do", "find"}, {"where", {{"class", "UINavigationBar"}}}}).size(), 1U)
        << "the application's own bar";
}

TEST_F(ControllerCommands, WhatAnOutsiderPresentsIsSeen) {
    const json alert = alertWith("Outside", 1);
    addAction(alert, "OK", 0);
    const json presenter = outsider();
    present(alert, presenter);
    EXPECT_EQ(alertTitle(), "Outside");
    EXPECT_EQ(screens(), json::array({"UIViewController", "UIAlertController"}));
    host.result({{"do", "alert"}, {"choose", "OK"}});
    EXPECT_EQ(alertTitle(), nullptr);
    EXPECT_EQ(screens(), json::array({"UIViewController"}));
}

TEST_F(ControllerCommands, ScreensAreInTheOrderInWhichTheyCame) {
    const json navigation = host.message({{"class", "UINavigationController"}}, "new");
    present(navigation, outsider());
    present(alertWith("First", 0), root);
    EXPECT_EQ(screens(),
              json::array({"UIViewController", "UINavigationController", "UIAlertController"}));
    present(alertWith("Second", 0), navigation);
    EXPECT_EQ(alertTitle(), "Second");
    host.message(navigation, "dismissViewControllerAnimated:completion:", {false, nullptr});
    EXPECT_EQ(alertTitle(), "First");
    EXPECT_EQ(screens(),
              json::array({"UIViewController", "UINavigationController", "UIAlertController"}));
}

TEST_F(ControllerCommands, AnAlertBelowAnotherScreenIsSeenAndChosen) {
    const json alert = alertWith("Below", 1);
    addAction(alert, "OK", 0);
    present(alert);
    present(fresh(), outsider());
    EXPECT_EQ(screens(),
              json::array({"UIViewController", "UIAlertController", "UIViewController"}));
    EXPECT_EQ(alertTitle(), "Below");
    host.result({{"do", "alert"}, {"choose", "OK"}});
    EXPECT_EQ(alertTitle(), nullptr);
    EXPECT_EQ(screens(), json::array({"UIViewController", "UIViewController"}));
}

TEST_F(ControllerCommands, AnAlertMayHaveAnotherScreenOverIt) {
    const json alert = alertWith("Presents", 1);
    present(alert);
    present(fresh(), alert);
    EXPECT_EQ(alertTitle(), "Presents");
    host.message(alert, "dismissViewControllerAnimated:completion:", {false, nullptr});
    EXPECT_EQ(alertTitle(), "Presents");
    host.message(root, "dismissViewControllerAnimated:completion:", {false, nullptr});
    EXPECT_EQ(screens(), json::array({"UIViewController"}));
}

} // namespace
