// The text viewer: pages, search, colours, sizes, copying, saving, and the analysis of reports.
#include "tests/features/files/viewer_phone.hpp"

namespace {

using tests::Json;

class TextViewer : public tests::ViewerTest {
protected:
    void open(const std::string& content, const std::string& name = "a.txt") {
        viewer = made("FileContentViewController");
        phone.message(viewer, "setFileContent:", {content});
        phone.message(viewer, "setFileURL:", {url(name)});
        show(viewer);
        view = phone.message(viewer, "textView");
    }
    std::string text() { return phone.message(view, "text"); }
    std::string counter() {
        return phone.message(phone.message(viewer, "searchCountLabel"), "text");
    }
    void search(const std::string& term) {
        press("搜索内容");
        phone.choose("搜索", {term});
    }
    Json saveButton() {
        return phone.message(phone.message(viewer, "navigationItem"), "rightBarButtonItem");
    }
    bool canSave() { return phone.message(saveButton(), "isEnabled"); }
    void type(const std::string& typed) {
        phone.message(view, "becomeFirstResponder");
        phone.result({{"do", "type"}, {"text", typed}});
    }
    /// The colour of a unit, as red, green, blue and alpha; null for the text's own.
    std::string colour(int unit) {
        const Json attributes = phone.message(phone.message(view, "textStorage"),
                                              "attributesAtIndex:effectiveRange:", {unit, nullptr});
        const Json found = attributes.value("NSColor", Json());
        return found.is_null() ? "" : found["description"].get<std::string>();
    }
    std::string named(const std::string& color) {
        return phone.message({{"class", "UIColor"}}, color)["description"];
    }
    /// Shows the end of the text but for so many points, as a flick does that comes to rest there.
    void reachEnd(double butFor = 0) {
        const double height = phone.message(view, "contentSize")["size"][1];
        const double shown = phone.node(view)["frame"][3];
        phone.message(view, "setContentOffset:", {{{"point", {0, height - shown - butFor}}}});
        phone.message(viewer, "scrollViewDidEndDecelerating:", {view});
    }
    /// Until the text is so long: another thread puts it together.
    void waitFor(std::size_t length) {
        EXPECT_TRUE(phone.until([&] { return text().size() == length; })) << text().size();
    }

    static constexpr std::size_t page = 268000;
    Json viewer;
    Json view;
};

TEST_F(TextViewer, LaysOutTextCounterAndButtons) {
    open("text");
    const Json safe = phone.message(phone.message(viewer, "view"), "safeAreaInsets")["insets"];
    const double row = 844 - safe[2].get<double>() - 55 - 35;
    const auto frame = [this](const std::string& title) {
        return phone.find({{"title", title}, {"visible", true}}).at(0)["frame"];
    };
    EXPECT_EQ(frame("日志检索"), (Json{0, row, 130, 35}));
    EXPECT_EQ(frame("复制全文"), (Json{130, row, 130, 35}));
    EXPECT_EQ(frame("搜索内容"), (Json{260, row, 130, 35}));
    EXPECT_EQ(frame("上一个"), (Json{97.5, 844 - 58, 80, 35}));
    EXPECT_EQ(frame("下一个"), (Json{212.5, 844 - 58, 80, 35}));
    const double top = safe[0].get<double>() + 20;
    EXPECT_EQ(phone.node(view)["frame"], (Json{20, top, 350, row - 20 - top}));
    const Json label = phone.node(phone.message(viewer, "searchCountLabel"))["frame"];
    EXPECT_DOUBLE_EQ(label[1].get<double>() + label[3].get<double>(), row - 3.6);
    EXPECT_DOUBLE_EQ(label[0].get<double>() + label[2].get<double>() / 2, 195);
    EXPECT_FALSE(canSave());
}

TEST_F(TextViewer, ShowsOnePageAndTheNextAtTheEnd) {
    open(std::string(page, 'a') + std::string(page, 'b') + "c");
    EXPECT_EQ(text(), std::string(page, 'a'));
    phone.message(viewer, "scrollViewDidEndDecelerating:", {view}); // at the start
    reachEnd(0.5);
    EXPECT_EQ(phone.message(viewer, "currentLoadedPage"), 0);
    reachEnd();
    waitFor(2 * page);
    reachEnd();
    waitFor(2 * page + 1);
    reachEnd();
    EXPECT_EQ(phone.message(viewer, "currentLoadedPage"), 3);
    EXPECT_EQ(phone.message(viewer, "loadedPages").size(), 3U);
}

TEST_F(TextViewer, LoadsPagesInTheOrderInWhichTheyAreAskedFor) {
    open(std::string(page, 'a') + std::string(page, 'b') + "c");
    phone.message(viewer, "loadPage:", {1});
    phone.message(viewer, "loadPage:", {2});
    phone.message(viewer, "loadPage:", {1});
    phone.message(viewer, "loadPage:", {7});
    waitFor(2 * page + 1);
    EXPECT_EQ(text().substr(page - 1, 2), "ab");
    EXPECT_EQ(text().substr(2 * page - 1), "bc");
}

TEST_F(TextViewer, NeverShowsEqualPagesTwice) {
    open(std::string(3 * page, 'a'));
    EXPECT_EQ(phone.message(viewer, "pages").size(), 3U);
    reachEnd();
    phone.advance(1);
    EXPECT_EQ(phone.message(viewer, "currentLoadedPage"), 1);
    EXPECT_EQ(phone.message(viewer, "loadedPages").size(), 1U);
}

TEST_F(TextViewer, IsEmptyWithoutContent) {
    viewer = made("FileContentViewController");
    show(viewer);
    view = phone.message(viewer, "textView");
    EXPECT_EQ(text(), "");
    search("a");
    press("下一个");
    press("上一个");
    EXPECT_EQ(counter(), "0个匹配");
    phone.message(viewer, "highlightSyntax");
    phone.message(viewer, "highlightSearchResultAtIndex:", {0});
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(TextViewer, StepsThroughMatchesOfEitherCase) {
    open("a Queue\nb\na queue");
    search("queue");
    EXPECT_EQ(counter(), "2个匹配 (当前第1个)");
    EXPECT_EQ(colour(2), named("orangeColor"));
    EXPECT_EQ(colour(12), named("blackColor"));
    press("上一个");
    EXPECT_EQ(counter(), "2个匹配 (当前第2个)");
    EXPECT_EQ(colour(12), named("orangeColor"));
    press("下一个");
    EXPECT_EQ(counter(), "2个匹配 (当前第1个)");
    search("");
    EXPECT_EQ(counter(), "");
}

TEST_F(TextViewer, GoesBackFromBeforeTheFirstMatchToTheLastButOne) {
    open("abc abc abc");
    phone.message(viewer, "findSearchResultsInTextView:", {"ABC"});
    EXPECT_EQ(counter(), "3个匹配");
    EXPECT_EQ(phone.message(viewer, "currentIndex"), -1);
    press("上一个");
    EXPECT_EQ(counter(), "3个匹配 (当前第2个)");
}

TEST_F(TextViewer, SurvivesATextThatBecameShorterThanItsMatches) {
    open("abc abc");
    phone.message(viewer, "findSearchResultsInTextView:", {"abc"});
    phone.message(view, "setText:", {"ab"});
    press("上一个");
    phone.message(viewer, "highlightSearchResultAtIndex:", {1});
    EXPECT_EQ(text(), "ab");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(TextViewer, OffersTermsOnALongPress) {
    open("Primary state\nspinlock");
    phone.press(phone.find({{"title", "搜索内容"}}).at(0), 0.15);
    phone.advance(1);
    ASSERT_EQ(phone.alert()["style"], "actionSheet");
    EXPECT_EQ(phone.alertActions(),
              (std::vector<std::string>{"spinlock", "queue", "CCSupport", "Snapper3", "kayoko",
                                        "Copylog", "procname", "SpringBoard", "UIApplication",
                                        "Primary state", "Snowboard", "split-view-pro", "取消"}));
    phone.choose("Primary state");
    EXPECT_EQ(counter(), "1个匹配 (当前第1个)");
}

TEST_F(TextViewer, ColoursItsSyntaxUntilAMatchIsShown) {
    open("name: <key>1-0</key> (x)");
    phone.press(phone.find({{"title", "复制全文"}}).at(0), 0.3);
    phone.advance(1);
    phone.choose("字符高亮");
    EXPECT_EQ(colour(0), named("redColor"));
    EXPECT_EQ(colour(4), named("orangeColor"));
    EXPECT_EQ(colour(7), named("systemPurpleColor"));
    EXPECT_EQ(colour(11), named("redColor"));
    EXPECT_EQ(colour(12), named("orangeColor"));
    EXPECT_EQ(colour(21), named("purpleColor"));
    EXPECT_EQ(colour(22), "");
    search("x");
    EXPECT_EQ(colour(0), named("blackColor"));
}

TEST_F(TextViewer, ColoursMatchesOfAPatternAndNothingForABrokenOne) {
    open("a1b2");
    const Json styled =
        phone.message(phone.message({{"class", "NSMutableAttributedString"}}, "alloc"),
                      "initWithString:", {"a1b2"});
    const Json red = phone.message({{"class", "UIColor"}}, "redColor");
    phone.message(viewer, "highlightTextWithRegex:color:inAttributedString:", {"[", red, styled});
    phone.message(viewer, "highlightTextWithRegex:color:inAttributedString:", {"\\d", red, styled});
    phone.message(view, "setAttributedText:", {styled});
    EXPECT_EQ(colour(0), "");
    EXPECT_EQ(colour(1), named("redColor"));
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(TextViewer, ChangesTheFontsSize) {
    open("text");
    const auto ask = [this](const std::string& answer) {
        phone.press(phone.find({{"title", "复制全文"}}).at(0), 0.3);
        phone.advance(1);
        phone.choose("文字大小");
        EXPECT_EQ(phone.alert()["title"], "设置字体大小");
        EXPECT_EQ(phone.alert()["fields"][0]["placeholder"], "请输入字体大小(数字)");
        phone.choose("确认", {answer});
        return phone.message(phone.message(view, "font"), "pointSize");
    };
    EXPECT_EQ(ask("21"), 21);
    EXPECT_TRUE(ask("0").is_number());
    EXPECT_TRUE(ask("-3").is_number());
    phone.result({{"do", "screenshot"}, {"file", (folder.path() / "a.png").string()}});
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(TextViewer, CopiesTheWholeFileAsItWas) {
    open(std::string(page, 'a') + "b");
    type("c");
    press("复制全文");
    EXPECT_EQ(phone.pasteboard(), std::string(page, 'a') + "b");
}

TEST_F(TextViewer, SavesWhatItShows) {
    write("a.txt", "former");
    open("文 text");
    type("!");
    ASSERT_TRUE(canSave());
    phone.message(viewer, "saveFile");
    EXPECT_EQ(read("a.txt"), "文 text!");
    EXPECT_FALSE(canSave());
    phone.advance(0.5);
    EXPECT_EQ(phone.alert()["title"], "Success");
    EXPECT_EQ(phone.alert()["message"], "文件保存成功");
    EXPECT_TRUE(phone.alert()["actions"].empty());
    phone.advance(1.5);
    EXPECT_TRUE(phone.alert().is_null());
}

TEST_F(TextViewer, SavesWhereALinkLeads) {
    write("target", "former");
    std::filesystem::create_symlink("target", onDisk("a.txt"));
    open("text");
    phone.message(viewer, "saveFile");
    EXPECT_EQ(read("target"), "text");
    EXPECT_TRUE(std::filesystem::is_symlink(onDisk("a.txt")));
}

TEST_F(TextViewer, ShortensAFileThatWasNotShownToItsEnd) {
    open(std::string(page, 'a') + "b");
    phone.message(viewer, "saveFile");
    EXPECT_EQ(read("a.txt").size(), page);
}

TEST_F(TextViewer, LeavesTheFileAloneWhenItCannotBeWritten) {
    write("folder/kept", "former");
    open("text", "folder"); // a folder has the file's name
    type("!");
    phone.message(viewer, "saveFile");
    phone.advance(0.5);
    EXPECT_EQ(phone.alert()["title"], "Fail");
    EXPECT_EQ(phone.alert()["message"].get<std::string>().find("文件保存失败: "), 0U);
    EXPECT_TRUE(canSave());
    EXPECT_EQ(read("folder/kept"), "former");
}

TEST_F(TextViewer, SavesNothingOfATextThatIsNoUnicode) {
    write("a.txt", "former");
    open("text");
    phone.message(view, "setText:", {{{"units", {97, 0xD83D}}}});
    phone.message(viewer, "saveFile");
    phone.advance(0.5);
    EXPECT_EQ(phone.alert()["title"], "Fail");
    EXPECT_EQ(read("a.txt"), "former");
}

TEST_F(TextViewer, KeepsTheTextClearOfTheKeyboard) {
    open("text");
    phone.message(view, "becomeFirstResponder");
    phone.advance(1);
    const Json insets = phone.message(view, "contentInset")["insets"];
    EXPECT_GT(insets[0], 0);
    EXPECT_GT(insets[2], 200);
    EXPECT_EQ(phone.message(view, "scrollIndicatorInsets")["insets"], insets);
    phone.message(view, "resignFirstResponder");
    phone.advance(1);
    EXPECT_EQ(phone.message(view, "contentInset")["insets"], (Json{insets[0], 0, 0, 0}));
}

TEST_F(TextViewer, AnalysesThePasteboard) {
    open("anything");
    phone.copy("/usr/lib/libobjc.A.dylib\n/var/jb/odd.dylib\nno library");
    press("日志检索");
    phone.advance(1);
    EXPECT_EQ(phone.result({{"do", "screens"}}).back(), "DetailsViewController");
    const Json details =
        phone.message(phone.message(viewer, "navigationController"), "topViewController");
    EXPECT_EQ(phone.message(details, "systemMessage"), "/usr/lib/libobjc.A.dylib\n");
    EXPECT_EQ(phone.message(details, "jailbreakMessage"), "/var/jb/odd.dylib\n\n");
}

TEST_F(TextViewer, AnalysesChosenWordsOnceInsteadOfThePasteboard) {
    open("anything");
    phone.message(viewer, "setSelectedWords:", {Json{"a.dylib", "b"}});
    phone.message(viewer, "zzjsButtonClicked:", {nullptr});
    const Json details =
        phone.message(phone.message(viewer, "navigationController"), "topViewController");
    EXPECT_EQ(phone.message(details, "jailbreakMessage"), "a.dylib b\n\n");
    EXPECT_TRUE(phone.message(viewer, "selectedWords").empty());
    EXPECT_EQ(phone.message(viewer, "isSystemDylib:", {"x UIKitCore.framework"}), true);
    EXPECT_EQ(phone.message(viewer, "dylibLinesInString:", {"b.dylib\nUIKitCore.framework\nc"}),
              (Json{"UIKitCore.framework", "b.dylib"}));
}

} // namespace
