// The result of a crash report's analysis: search, copying, jumping.
#include "tests/support/phone.hpp"

#include <gtest/gtest.h>

namespace {

using tests::Json;

class Details : public testing::Test {
protected:
    Details() : Details(80) {}
    explicit Details(int lines) {
        std::string system;
        for (int line = 0; line < lines; ++line) {
            system += "UIKitCore.framework " + std::to_string(line) + "\n";
        }
        details = phone.message({{"class", "DetailsViewController"}}, "new");
        phone.message(details, "setSystemMessage:", {system});
        phone.message(details, "setJailbreakMessage:", {"Odd.dylib\n\n"});
        const Json root =
            phone.message(phone.message({{"class", "UINavigationController"}}, "alloc"),
                          "initWithRootViewController:", {details});
        phone.message(phone.message(phone.window(), "rootViewController"),
                      "presentViewController:animated:completion:", {root, false, nullptr});
        phone.advance(1);
        view = phone.message(details, "textView");
    }
    std::string text() { return phone.message(view, "text"); }
    double scrolled() { return phone.message(view, "contentOffset")["point"][1]; }
    void press(const std::string& title) {
        phone.tap(phone.find({{"title", title}, {"visible", true}}).at(0));
        phone.advance(1);
    }
    void search(const Json& sought) {
        phone.message(details,
                      "searchBar:textDidChange:", {phone.message(details, "searchBar"), sought});
    }
    /// Brings up the keyboard, or sends it away.
    void edit(const Json& field, bool edits) {
        phone.message(field, edits ? "becomeFirstResponder" : "resignFirstResponder");
        phone.advance(1);
    }
    Json insets() { return phone.message(view, "contentInset")["insets"]; }

    tests::Phone phone{{"--app", "notes"}};
    Json details;
    Json view;
};

TEST_F(Details, ShowsBothSortsAndSearchesInThem) {
    const std::string whole = text();
    EXPECT_EQ(whole.substr(0, 13), "\n提示：此");
    EXPECT_NE(whole.find("❌异常或越狱插件的可执行库:\n\nOdd.dylib"), whole.npos);
    search("KIT");
    EXPECT_EQ(text().substr(0, 44), "UIKitCore.framework 0\n\nUIKitCore.framework 1");
    search("nowhere");
    EXPECT_EQ(text(), "");
    search("");
    EXPECT_EQ(text(), whole);
    EXPECT_EQ(phone.message(view, "isEditable"), false);
}

TEST_F(Details, CopiesTheAddOnsAlone) {
    press("复制异常");
    EXPECT_EQ(phone.pasteboard(), "Odd.dylib\n\n");
}

TEST_F(Details, JumpsToTheAddOnsAndToBothEnds) {
    press("跳转异常");
    EXPECT_GT(scrolled(), 500);
    search("odd");
    press("跳转异常");
    search("");
    press("顶部"); // the first press leads to the end
    EXPECT_GT(scrolled(), 500);
    press("顶部");
    EXPECT_LE(scrolled(), 0);
    EXPECT_EQ(phone.find({{"title", "底部"}, {"visible", true}}).size(), 1U);
}

class ShortDetails : public Details {
protected:
    ShortDetails() : Details(1) {}
};

TEST_F(ShortDetails, BeginBelowTheBar) {
    const Json bars = phone.find({{"class", "UINavigationBar"}, {"visible", true}});
    const Json bar = bars.back()["rect"]; // over the application's
    const Json rect = phone.node(view)["rect"];
    EXPECT_EQ(rect[1].get<double>() - scrolled(), bar[1].get<double>() + bar[3].get<double>());
}

TEST_F(Details, KeepsTheTextClearOfTheBarAndTheKeyboard) {
    const Json field = phone.message(phone.message(details, "searchBar"), "searchTextField");
    const Json bar = phone.message(phone.message(details, "navigationController"), "navigationBar");
    const double safe = phone.message(phone.window(), "safeAreaInsets")["insets"][0];
    const double barHeight = phone.message(bar, "frame")["rect"][3];
    edit(field, true);
    EXPECT_EQ(insets()[0], safe + barHeight);
    EXPECT_GT(insets()[2], 200);
    EXPECT_EQ(phone.message(view, "scrollIndicatorInsets")["insets"], insets());
    edit(field, false);
    EXPECT_EQ(insets(), (Json{safe + barHeight, 0, 0, 0}));
    EXPECT_EQ(phone.message(view, "adjustedContentInset")["insets"], insets()) << "once, not twice";
}

TEST_F(Details, LeavesTheTextAloneOnceItHasGone) {
    const Json before = insets();
    phone.message(details, "dismissViewControllerAnimated:completion:", {false, nullptr});
    const Json field = phone.make("UITextField");
    phone.message(phone.window(), "addSubview:", {field});
    edit(field, true);
    EXPECT_EQ(insets(), before);
}

} // namespace
