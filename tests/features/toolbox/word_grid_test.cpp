// The word grid: tiles, picking by tap and by slide, counts, and where picked words go.
#include "tests/features/toolbox/toolbox_panel.hpp"
#include "tests/support/temporary_folder.hpp"

namespace {

using tests::Json;
using tests::ToolboxPanel;

const std::string tapped = "#0000ff40";
const std::string slid = "#add8e6cc";
const std::string unpicked = "#ffffffff";

class WordGrid : public ToolboxPanel {
public:
    explicit WordGrid(const Json& words, const Json& preferences = Json::object())
        : ToolboxPanel(preferences) {
        show(words);
    }

    void show(const Json& words) {
        panel("updateWordsArray:", {words});
        message(grid(), "layoutIfNeeded");
    }
    Json grid() { return panel("wordsCollectionView"); }
    Json tile(long row) { return node(message(grid(), "cellForItemAtIndexPath:", {pathOf(row)})); }
    std::string textOf(long row) {
        const Json label = tile(row).at("children").at(0).at("children").at(0);
        return label.at("text");
    }
    std::string colourOf(long row) { return tile(row).at("children").at(0).at("backgroundColor"); }
    std::string colours(long count) {
        std::string letters;
        for (long row = 0; row < count; ++row) {
            const std::string colour = colourOf(row);
            letters += colour == tapped     ? 't'
                       : colour == slid     ? 's'
                       : colour == unpicked ? '.'
                                            : '?';
        }
        return letters;
    }
    std::vector<double> centreOf(long row) {
        const Json rect = tile(row).at("rect");
        return {rect.at(0).get<double>() + rect.at(2).get<double>() / 2,
                rect.at(1).get<double>() + rect.at(3).get<double>() / 2};
    }
    void tapTile(long row) {
        result({{"do", "tap"}, {"at", centreOf(row)}});
        advance(0.5);
    }
    void finger(const char* phase, long row) {
        const std::vector<double> centre = centreOf(row);
        result({{"do", "touch"},
                {"phase", phase},
                {"points", Json::array({Json{0, centre[0], centre[1]}})}});
    }
    Json picked() { return panel("selectedWords"); }
    std::size_t pickedTiles() { return message(panel("selectedIndexPaths"), "count"); }
};

TEST(WordGrid, TilesOfLineBreaksAreOneLineHigh) {
    WordGrid phone({"a", "\r", "\u0085", "\u2028", "\n"});
    const double height = phone.tile(0).at("frame").at(3);
    for (int index = 1; index < 5; ++index) {
        EXPECT_EQ(phone.tile(index).at("frame").at(3), height) << index;
    }
}

TEST(WordGrid, ShowsATokenThatIsVeryLong) {
    const std::string token(1'000'000, 'x');
    WordGrid phone(Json::array({token}));
    EXPECT_GT(phone.tile(0).at("frame").at(3), 100'000);
    const support::TemporaryFolder folder;
    phone.result({{"do", "screenshot"}, {"file", (folder.path() / "screen.png").string()}});
    EXPECT_TRUE(phone.textOf(0) == token);
}

const Json letters{"a", "b", "c", "d", "e", "f", "g", "h"};

TEST(WordGrid, ShowsATileForEachToken) {
    WordGrid phone({"你好", " ", "\n", "world"});
    EXPECT_EQ(phone.message(phone.grid(), "numberOfItemsInSection:", {0}), 4);
    EXPECT_EQ(phone.textOf(0), "你好");
    EXPECT_EQ(phone.textOf(2), "⏎");
    EXPECT_EQ(phone.textOf(3), "world");
    EXPECT_EQ(phone.colours(4), "....");
    EXPECT_EQ(phone.tile(0).at("frame").at(1), 0);
    const Json label = phone.tile(0).at("children").at(0).at("children").at(0);
    EXPECT_EQ(label.at("font").at("size"), 14.5);
    EXPECT_EQ(label.at("frame"), phone.message(phone.tile(0), "bounds").at("rect"));
    EXPECT_GE(phone.tile(1).at("frame").at(3), 21);
}

TEST(WordGrid, ATileShowsNothingOfAnEarlierText) {
    WordGrid phone({"a", "b", "c"});
    phone.show({"d", "e"});
    for (const auto& [row, text] : {std::pair{0L, "d"}, {1L, "e"}}) {
        EXPECT_EQ(phone.textOf(row), text);
        EXPECT_EQ(phone.tile(row).at("children").at(0).at("children").size(), 1U) << text;
    }
}

TEST(WordGrid, MeasuresAndDrawsInFontsOfTheirOwn) {
    WordGrid small({"word"}, {{"表格文字大小", 30}, {"表格高度设定", 10}});
    WordGrid large({"word"}, {{"表格文字大小", 30}, {"表格高度设定", 40}});
    EXPECT_LT(small.tile(0).at("frame").at(2), large.tile(0).at("frame").at(2));
    EXPECT_EQ(small.tile(0).at("frame").at(3), 21);
    EXPECT_EQ(small.tile(0).at("children").at(0).at("children").at(0).at("font").at("size"), 30);
}

TEST(WordGrid, ATapPicksAndAnotherLetsGo) {
    WordGrid phone(letters);
    phone.tapTile(2);
    phone.tapTile(0);
    EXPECT_EQ(phone.picked(), (Json{"c", "a"}));
    EXPECT_EQ(phone.panel("selectedString"), "a");
    EXPECT_EQ(phone.colours(4), "t.t.");
    phone.tapTile(2);
    EXPECT_EQ(phone.picked(), (Json{"a"}));
    EXPECT_EQ(phone.colours(4), "t...");
    EXPECT_EQ(phone.pickedTiles(), 1U);
}

TEST(WordGrid, LettingOneOfTwoEqualTokensGoDropsBoth) {
    WordGrid phone({"x", "y", "x"});
    for (const long row : {0L, 1L, 2L, 0L}) {
        phone.tapTile(row);
    }
    EXPECT_EQ(phone.picked(), (Json{"y"}));
    EXPECT_EQ(phone.colours(3), ".tt");
    EXPECT_EQ(phone.pickedTiles(), 2U);
}

TEST(WordGrid, ASlidePicksARunAndReleasesWithALag) {
    WordGrid phone(letters);
    phone.finger("began", 2);
    phone.advance(0.15);
    EXPECT_EQ(phone.panel("isSlideSelecting"), true);
    EXPECT_EQ(phone.colours(8), "..s.....");
    phone.finger("moved", 6);
    EXPECT_EQ(phone.picked(), (Json{"c", "d", "e", "f", "g"}));
    EXPECT_EQ(phone.colours(8), "..sssss.");
    phone.finger("moved", 4);
    EXPECT_EQ(phone.pickedTiles(), 4U) << "one of the two beyond the finger is left";
    const std::vector<double> centre = phone.centreOf(4);
    phone.result({{"do", "touch"},
                  {"phase", "moved"},
                  {"points", Json::array({Json{0, centre[0] + 1, centre[1]}})}});
    EXPECT_EQ(phone.colours(8), "..sss...");
    phone.finger("moved", 0);
    EXPECT_EQ(phone.pickedTiles(), 4U) << "one of d and e is released, the other not yet";
    EXPECT_EQ(phone.colours(3), "sss");
    phone.finger("ended", 0);
    EXPECT_EQ(phone.panel("isSlideSelecting"), false);
    EXPECT_EQ(phone.panel("startIndexPath"), nullptr);
}

TEST(WordGrid, PicksARangeOfRowsInAscendingOrder) {
    WordGrid phone(letters);
    phone.panel("selectWordsFromStartIndexPath:toEndIndexPath:",
                {phone.pathOf(3), phone.pathOf(1)});
    EXPECT_EQ(phone.picked(), (Json{"b", "c", "d"}));
    phone.panel("selectWordsFromStartIndexPath:toEndIndexPath:", {phone.pathOf(0), nullptr});
    EXPECT_EQ(phone.pickedTiles(), 3U);
}

TEST(WordGrid, SelectsAllAndThenNone) {
    WordGrid phone(letters);
    const Json all{{"do", "wait"}, {"for", {{"title", "取消全选"}}}};
    const Json none{{"do", "wait"}, {"for", {{"title", "全选文字"}}}};
    phone.tap("全选文字");
    phone.result(all);
    EXPECT_EQ(phone.picked(), letters);
    EXPECT_EQ(phone.colours(8), "tttttttt");
    EXPECT_EQ(phone.message(phone.message(phone.grid(), "indexPathsForSelectedItems"), "count"), 8);
    phone.tap("取消全选");
    phone.result(none);
    EXPECT_EQ(phone.picked(), Json::array());
    EXPECT_EQ(phone.pickedTiles(), 0U);
    EXPECT_EQ(phone.colours(8), "........");
    phone.tapTile(1);
    EXPECT_EQ(phone.picked(), (Json{"b"})) << "the grid has its delegate again";
}

TEST(WordGrid, SelectsAllAfterOneTileWasPicked) {
    WordGrid phone({"a", "b", "a"});
    phone.tapTile(2);
    phone.tap("全选文字");
    phone.result({{"do", "wait"}, {"for", {{"title", "取消全选"}}}});
    EXPECT_EQ(phone.picked(), (Json{"a", "b", "a"})) << "each token once, in the text's order";
    EXPECT_EQ(phone.pickedTiles(), 3U);
    EXPECT_EQ(phone.colours(3), "ttt");
}

TEST(WordGrid, SelectingNoneKeepsTheTilesOfAnEarlierText) {
    WordGrid phone(letters);
    phone.tapTile(7);
    phone.show({"x", "y"});
    phone.tap("全选文字");
    phone.result({{"do", "wait"}, {"for", {{"title", "取消全选"}}}});
    EXPECT_EQ(phone.pickedTiles(), 3U);
    phone.tap("取消全选");
    phone.result({{"do", "wait"}, {"for", {{"title", "全选文字"}}}});
    EXPECT_EQ(phone.pickedTiles(), 1U);
    EXPECT_EQ(
        phone.message(phone.panel("selectedIndexPaths"), "containsObject:", {phone.pathOf(7)}),
        true);
}

TEST(WordGrid, HonoursASelectionThatIsEmptiedFromOutside) {
    WordGrid phone(letters);
    const Json others = phone.message({{"class", "NSMutableSet"}}, "set");
    for (const bool replaced : {false, true}) {
        phone.finger("began", 2);
        phone.advance(0.15);
        phone.finger("moved", 4);
        EXPECT_EQ(phone.pickedTiles(), 3U);
        phone.panel("pasteButtonClicked:", {nullptr}); // empties the picked words
        if (replaced) {
            phone.panel("setSelectedIndexPaths:", {others});
        } else {
            phone.message(phone.panel("selectedIndexPaths"), "removeAllObjects");
        }
        // As many as before, but others.
        for (const long row : {5L, 6L, 7L}) {
            phone.message(phone.panel("selectedIndexPaths"), "addObject:", {phone.pathOf(row)});
        }
        phone.finger("moved", 3);
        EXPECT_EQ(phone.picked().at(0), "c");
        EXPECT_EQ(phone.picked().at(1), "d");
        EXPECT_EQ(phone.pickedTiles(), 4U) << "one of the three others is released";
        phone.finger("ended", 3);
        phone.panel("pasteButtonClicked:", {nullptr});
        phone.message(phone.panel("selectedIndexPaths"), "removeAllObjects");
    }
}

TEST(WordGrid, CountsTextAndSymbolsWhenItIsWanted) {
    WordGrid phone({"你好", ",", "ab1", "😀", "\n"}, {{"开启数量统计", true}});
    const auto texts = [&phone] {
        Json all;
        for (const char* label : {"totalWordsLabel", "totalSymbolsLabel", "selectedWordsLabel",
                                  "selectedSymbolsLabel"}) {
            all.push_back(phone.message(phone.panel(label), "text"));
        }
        return all;
    };
    phone.tapTile(2);
    phone.tapTile(3);
    const Json counted{"总文字数量：5", "总符号数量：4", "选中的文字数量：3", "选中的符号数量：2"};
    EXPECT_EQ(texts(), counted);
    phone.set({{"开启数量统计", false}});
    phone.tapTile(0);
    EXPECT_EQ(texts(), counted) << "the labels keep their last texts";
    phone.set({{"开启数量统计", true}});
    phone.show({"一"});
    phone.panel("updateStatistics");
    EXPECT_EQ(texts().at(0), "总文字数量：1");
}

TEST(WordGrid, CopiesWhatIsPickedOrWritesThePasteboardAgain) {
    WordGrid phone(letters);
    phone.tapTile(3);
    phone.tapTile(1);
    phone.tap("写入粘板");
    EXPECT_EQ(phone.result({{"do", "pasteboard"}}), "db");
    EXPECT_EQ(phone.picked(), Json::array());
    EXPECT_EQ(phone.pickedTiles(), 2U) << "the tiles stay picked";
    const long changes = phone.pasteboardChanges();
    phone.tap("写入粘板");
    EXPECT_EQ(phone.result({{"do", "pasteboard"}}), "db");
    EXPECT_EQ(phone.pasteboardChanges(), changes + 1);
    phone.result({{"do", "pasteboard"}, {"set", nullptr}});
    phone.tap("写入粘板");
    EXPECT_EQ(phone.result({{"do", "pasteboard"}}), "");
}

TEST(WordGrid, PicksOutliveTheirText) {
    WordGrid phone(letters);
    phone.tapTile(1);
    phone.tapTile(7);
    phone.show({"x", "y"});
    EXPECT_EQ(phone.picked(), (Json{"b", "h"}));
    EXPECT_EQ(phone.pickedTiles(), 2U);
    EXPECT_EQ(phone.colours(2), "..") << "a reused tile starts white";
    // The tile beyond the text is released by a slide, without taking any word along.
    phone.finger("began", 0);
    phone.advance(0.15);
    phone.finger("moved", 1);
    EXPECT_EQ(phone.picked(), (Json{"b", "h", "x"}));
    EXPECT_EQ(phone.pickedTiles(), 2U);
    phone.finger("ended", 1);
    phone.show(Json::array());
    phone.panel("updateWordsArray:", {nullptr});
    phone.panel("deselectItemAtIndexPath:", {phone.pathOf(1)});
    phone.panel("collectionView:didSelectItemAtIndexPath:", {phone.grid(), phone.pathOf(5)});
    EXPECT_EQ(phone.pickedTiles(), 1U);
    EXPECT_EQ(phone.swallowed().size(), 0U);
}

TEST(WordGrid, SharesWhatIsPickedWithItsBlanks) {
    WordGrid phone({"a", " ", "b", "c"});
    for (const long row : {0L, 1L, 2L}) {
        phone.tapTile(row);
    }
    phone.result({{"do", "events"}});
    phone.tap("分享文字");
    phone.advance(1);
    const Json sheet = phone.panel("getCurrentViewController");
    EXPECT_EQ(sheet.at("class"), "UIActivityViewController");
    constexpr int overCurrentContext = 6;
    EXPECT_EQ(phone.message(sheet, "modalPresentationStyle"), overCurrentContext);
    std::vector<Json> shared;
    for (const Json& event : phone.result({{"do", "events"}})) {
        EXPECT_NE(event.at("kind"), "exception");
        if (event.at("kind") == "share") {
            shared.push_back(event.at("items"));
        }
    }
    EXPECT_EQ(shared, std::vector<Json>{{"a   b"}}) << "single spaces between the words";
}

} // namespace
