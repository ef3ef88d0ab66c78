// The viewer of bytes: blocks as sections, bytes as cells.
#include "tests/features/files/viewer_phone.hpp"

#include <sys/stat.h>

namespace {

using tests::Json;

class HexViewer : public tests::ViewerTest {
protected:
    void open(const Json& file) {
        viewer = phone.result({{"do", "make"},
                               {"class", "HexEditorViewController"},
                               {"selector", "initWithSrcPath:"},
                               {"args", {file}}});
        show(viewer);
        grid = phone.find({{"class", "UICollectionView"}}).back();
    }
    void openFile(const std::string& bytes) {
        write("a.bin", bytes);
        open(path("a.bin"));
    }
    long sections() { return phone.message(grid, "numberOfSections"); }
    long items(long section) { return phone.message(grid, "numberOfItemsInSection:", {section}); }
    std::vector<std::string> shown() {
        std::vector<std::string> texts;
        for (const Json& cell : phone.find({{"class", "HexCell"}})) {
            texts.push_back(phone.message(phone.message(cell, "hexLabel"), "text"));
        }
        return texts;
    }

    Json viewer;
    Json grid;
};

TEST_F(HexViewer, ShowsEachByteAsTwoDigits) {
    openFile({'\n', '\0', '\xFF', 'a', '\x7F'});
    EXPECT_EQ(shown(), (std::vector<std::string>{"0a", "00", "ff", "61", "7f"}));
    EXPECT_EQ(phone.message(viewer, "inputStream"), nullptr);
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HexViewer, ReadsFilesWhateverTheirNames) {
    write("\xFF", "ab");
    Json units = Json::array();
    for (const char unit : path("")) {
        units.push_back(int{unit});
    }
    units.push_back(0xDCFF); // the byte in a text
    open({{"units", units}});
    EXPECT_EQ(shown(), (std::vector<std::string>{"61", "62"}));
}

TEST_F(HexViewer, BeginsBelowTheBar) {
    for (const std::size_t size : {3U, 100'000U}) {
        openFile(std::string(size, 'a'));
        const Json bar = phone.node(
            phone.message(phone.message(viewer, "navigationController"), "navigationBar"))["rect"];
        const Json first =
            phone.message({{"class", "NSIndexPath"}}, "indexPathForItem:inSection:", {0, 0});
        const Json cell =
            phone.node(phone.message(grid, "cellForItemAtIndexPath:", {first}))["rect"];
        EXPECT_EQ(cell[1].get<double>(), bar[1].get<double>() + bar[3].get<double>()) << size;
    }
}

TEST_F(HexViewer, HasASectionForEachBlock) {
    openFile(std::string(257, 'a'));
    EXPECT_EQ(sections(), 2);
    EXPECT_EQ(items(0), 256);
    EXPECT_EQ(items(1), 1);
    EXPECT_EQ(phone.message(viewer, "pagedData").size(), 2U);
}

TEST_F(HexViewer, FillsWholeBlocksFromManyReads) {
    openFile(std::string(200'000, 'a'));
    EXPECT_EQ(sections(), 782);
    EXPECT_EQ(items(780), 256);
    EXPECT_EQ(items(781), 200'000 - 781 * 256);
}

TEST_F(HexViewer, IsEmptyForWhatCannotBeRead) {
    write("folder/a", "");
    ASSERT_EQ(mkfifo(onDisk("pipe").c_str(), 0600), 0);
    for (const char* const name : {"folder/a", "folder", "pipe", "none"}) {
        open(path(name));
        EXPECT_EQ(sections(), 0) << name;
    }
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(HexViewer, CellsFillTheirLabelsWithLegibleDigits) {
    openFile("ab");
    const Json cell = phone.find({{"class", "HexCell"}}).at(1);
    const Json label = phone.node(phone.message(cell, "hexLabel"));
    EXPECT_EQ(label["rect"], cell["rect"]);
    EXPECT_GE(label["font"]["size"], 12);
}

TEST_F(HexViewer, FollowsTheScreensSize) {
    openFile("ab");
    phone.result({{"do", "rotate"}, {"to", "landscapeLeft"}});
    phone.advance(1);
    EXPECT_EQ(phone.node(grid)["frame"], (Json{0, 0, 844, 390}));
    EXPECT_EQ(phone.find({{"class", "HexCell"}}).size(), 2U);
}

TEST_F(HexViewer, ScrollsToTheEnd) {
    std::string bytes(100'000, 'a');
    bytes.back() = '\x01';
    openFile(bytes);
    const double height = phone.message(grid, "contentSize")["size"][1];
    phone.message(grid, "setContentOffset:", {{{"point", {0, height - 700}}}});
    phone.advance(0.1);
    const auto texts = shown();
    EXPECT_NE(std::ranges::find(texts, "01"), texts.end());
    EXPECT_LT(texts.size(), 1000U);
}

} // namespace
