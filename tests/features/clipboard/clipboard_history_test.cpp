// The list of copied texts: recording, filtering, sorting, choosing, deleting, opening.
#include "tests/features/clipboard/history_list.hpp"

namespace {

using tests::HistoryList;
using tests::Json;
using Texts = std::vector<std::string>;

TEST_F(HistoryList, RecordsWhatIsCopiedWhileItIsOpenNewestLast) {
    phone.copy("before");
    open();
    EXPECT_EQ(shown(), (Texts{"before"})) << "what is on the pasteboard already";
    for (const char* text : {"A", "A", "B", "A"}) {
        phone.advance(1);
        phone.copy(text);
    }
    EXPECT_EQ(shown(), (Texts{"before"}))
        << "the list itself waits for the next change of a filter";
    EXPECT_EQ(stored("content"), (Texts{"before", "B", "A"}));
    EXPECT_EQ(stored("time").back(), "2025/12/30 12:00:05");
    phone.tap(barButton("数字"));
    phone.tap(barButton("数字"));
    EXPECT_EQ(shown(), (Texts{"before", "B", "A"}));
}

TEST_F(HistoryList, TextsAreTheSameUnitByUnit) {
    open();
    for (const char* text : {"é", "e\u0301", "É", "é"}) {
        phone.copy(text);
    }
    EXPECT_EQ(stored("content"), (Texts{"e\u0301", "É", "é"}));
}

TEST_F(HistoryList, RecordsNothingOnceItIsGone) {
    press();
    phone.copy("seen");
    close();
    phone.copy("while nobody looks");
    phone.copy("at the next opening");
    EXPECT_EQ(stored("content"), (Texts{"seen"}));
    open();
    EXPECT_EQ(shown(), (Texts{"seen", "at the next opening"}));
}

TEST_F(HistoryList, ForgetsTheOldestBeyondFifty) {
    open();
    for (int number = 1; number <= 51; ++number) {
        phone.copy("text " + std::to_string(number));
    }
    EXPECT_EQ(stored("content").size(), 50U);
    EXPECT_EQ(stored("content").front(), "text 2");
    EXPECT_EQ(stored("content").back(), "text 51");
}

TEST_F(HistoryList, TakesNoNoticeOfPicturesAndOfNothing) {
    open();
    const std::string picture = phone.temporaryFolder() / "screen.png";
    phone.result({{"do", "screenshot"}, {"file", picture}});
    phone.result({{"do", "pasteboard"}, {"image", picture}});
    phone.copy(nullptr);
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(HistoryList, FiltersByTheButtonsBelow) {
    write({"http://a.example 1", "HTTP 2", "abc\n123", "a1", "汉字", "٣"});
    open();
    const auto after = [this](const char* button) {
        phone.tap(barButton(button));
        return shown();
    };
    EXPECT_EQ(after("链接"), (Texts{"http://a.example 1"}));
    EXPECT_EQ(after("链接").size(), 6U);
    EXPECT_EQ(after("数字"), (Texts{"http://a.example 1", "HTTP 2", "a1", "٣"}));
    EXPECT_EQ(after("字母"), (Texts{"http://a.example 1", "HTTP 2", "a1"}));
    EXPECT_EQ(after("链接"), (Texts{"http://a.example 1"}));
    EXPECT_EQ(phone.message(list, "filteringLetters"), true);
}

TEST_F(HistoryList, SortsByTimeUntilTheNextFilter) {
    write({"b", "c", "a"}, {"2025/01/01 00:00:02", "2025/01/01 00:00:10", "2025/01/01 00:00:01"});
    open();
    phone.tap(barButton("日期"));
    EXPECT_EQ(shown(), (Texts{"a", "b", "c"}));
    EXPECT_EQ(phone.message(list, "sortingAscend"), true);
    phone.tap(barButton("日期"));
    EXPECT_EQ(shown(), (Texts{"c", "b", "a"}));
    EXPECT_EQ(stored("content"), (Texts{"b", "c", "a"}));
    phone.tap(barButton("字母"));
    EXPECT_EQ(shown(), (Texts{"b", "c", "a"}));
}

TEST_F(HistoryList, ChoosingCopiesMovesToTheEndAndCloses) {
    write({"first", "second"});
    open();
    phone.copy("third");
    phone.tap(row("first"));
    EXPECT_EQ(phone.pasteboard(), "first");
    EXPECT_EQ(stored("content"), (Texts{"second", "third", "first"}));
    phone.advance(1);
    EXPECT_FALSE(isOpen());
}

TEST_F(HistoryList, WithoutABlockChoosingOnlyCopies) {
    write({"first"});
    open();
    phone.message(list, "setDismissBlock:", {nullptr});
    phone.tap(row("first"));
    phone.advance(1);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(phone.pasteboard(), "first");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HistoryList, DeletingStoresWhatIsShown) {
    write({"http://one", "two", "http://three"});
    open();
    phone.tap(barButton("链接"));
    const Json offered = phone.result({{"do", "swipe"}, {"on", row("http://one")}});
    EXPECT_EQ(offered, (Json{"删除"}));
    EXPECT_EQ(shown().size(), 2U) << "looking changes nothing";
    const Json refused{{"do", "swipe"}, {"on", row("http://one")}, {"choose", "回收站"}};
    EXPECT_NE(phone.error(refused).find("删除"), std::string::npos);
    phone.result({{"do", "swipe"}, {"on", row("http://one")}, {"choose", "删除"}});
    EXPECT_EQ(shown(), (Texts{"http://three"}));
    EXPECT_EQ(stored("content"), (Texts{"http://three"}));
    phone.tap(barButton("链接"));
    EXPECT_EQ(shown(), (Texts{"http://one", "two", "http://three"})) << "until the next opening";
    close();
    open();
    EXPECT_EQ(shown(), (Texts{"http://three"}));
}

TEST_F(HistoryList, ARowIsDeletedByAFinger) {
    write({"one", "two"});
    open();
    const Json rect = phone.node(row("one"))["rect"];
    const double y = rect[1].get<double>() + 20;
    phone.slide({{300, y}, {200, y}});
    phone.advance(1);
    phone.tap(phone.find({{"title", "删除"}, {"visible", true}}).at(0));
    EXPECT_EQ(shown(), (Texts{"two"}));
    EXPECT_EQ(stored("content"), (Texts{"two"}));
}

TEST_F(HistoryList, RowsAreAsTallAsTheirTexts) {
    std::string tall = "line";
    for (int line = 1; line < 20; ++line) {
        tall += "\nline";
    }
    write({"short", tall, "last"});
    open();
    const auto height = [this](const std::string& text) {
        return phone.node(row(text))["frame"][3].get<double>();
    };
    EXPECT_LT(height("short"), 70);
    EXPECT_GT(height(tall), 20 * 20);
    EXPECT_NEAR(phone.node(row(tall))["frame"][1].get<double>(), height("short"), 1e-9);
}

TEST_F(HistoryList, ShowsAButtonForPathsAndOneForLinks) {
    write({"/var/mobile/a.txt and /var/mobile/a.txt", "see https://a.example/x",
           "/etc/hosts https://b.example", "neither"});
    open();
    const auto titles = [this](const std::string& text) {
        Texts found;
        for (const Json& view : buttonsOf(text)) {
            found.push_back(view["title"]);
        }
        return found;
    };
    EXPECT_EQ(titles("/var/mobile/a.txt and /var/mobile/a.txt"), (Texts{"跳转"}));
    EXPECT_EQ(titles("see https://a.example/x"), (Texts{"加载"}));
    EXPECT_EQ(titles("/etc/hosts https://b.example"), (Texts{"跳转", "加载"}));
    EXPECT_EQ(titles("neither"), Texts{});
    const auto both = buttonsOf("/etc/hosts https://b.example");
    EXPECT_EQ(both[0]["frame"][0], 390 - 58 - 45);
    EXPECT_EQ(both[1]["frame"][0], 390 - 8 - 45);
    EXPECT_NEAR(both[0]["frame"][3].get<double>(), 23, 1e-9);
    EXPECT_EQ(phone.message(both[0], "restorationIdentifier"), "/etc/hosts https://b.example");
}

TEST_F(HistoryList, OpensTheOnlyPathOrLinkAtOnce) {
    write({"/var/mobile/a.txt and /var/mobile/a.txt", "see example.com/x"});
    open();
    phone.tap(buttonsOf("/var/mobile/a.txt and /var/mobile/a.txt").at(0));
    EXPECT_EQ(phone.events("openURL").at(0)["url"], "filza:///var/mobile/a.txt");
    phone.tap(buttonsOf("see example.com/x").at(0));
    EXPECT_EQ(phone.events("openURL").at(0)["url"], "http://example.com/x");
    EXPECT_TRUE(isOpen()) << "a button is no choice of the row";
}

TEST_F(HistoryList, LetsTheUserChooseAmongSeveral) {
    write({"/etc/hosts /tmp https://a.example https://b.example"});
    open();
    const auto buttons = buttonsOf("/etc/hosts /tmp https://a.example https://b.example");
    phone.tap(buttons.at(0));
    phone.advance(1);
    const Json sheet = phone.alert();
    EXPECT_EQ(sheet["style"], "actionSheet");
    EXPECT_EQ(sheet["title"], "选择路径");
    EXPECT_EQ(sheet["message"], nullptr);
    EXPECT_EQ(sheet["actions"], (Json::parse(R"([{"title":"filza:///etc/hosts","style":"default"},
        {"title":"filza:///tmp","style":"default"},{"title":"取消","style":"cancel"}])")));
    phone.choose("filza:///tmp");
    EXPECT_EQ(phone.events("openURL").at(0)["url"], "filza:///tmp");
    phone.tap(buttons.at(1));
    phone.advance(1);
    EXPECT_EQ(phone.alert()["title"], "选择链接");
    phone.result({{"do", "alert"}, {"choose", "取消"}});
    EXPECT_TRUE(phone.events("openURL").empty());
}

TEST_F(HistoryList, ReadsItsFileAnewWhenAsked) {
    open();
    write({"from elsewhere"});
    phone.message(list, "loadContents");
    EXPECT_EQ(shown(), (Texts{"from elsewhere"}));
    EXPECT_EQ(phone.message(list, "clipboardContents"), Json::array());
    std::filesystem::remove(file());
    phone.message(list, "loadContents");
    EXPECT_TRUE(shown().empty());
}

TEST_F(HistoryList, TakesTheYearOfTheWeek) {
    open();
    EXPECT_EQ(phone.message(list, "getCurrentDateTimeString"), "2025/12/30 12:00:01");
}

} // namespace
