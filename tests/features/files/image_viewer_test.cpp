// The viewer of images: pages, their line, zooming, background and sharing.
#include "tests/features/files/viewer_phone.hpp"

namespace {

using tests::Json;

class ImageViewer : public tests::ViewerTest {
protected:
    /// A picture of that size in one colour.
    void paint(const std::string& name, int width, int height, const std::string& colour) {
        std::string header =
            "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
        for (int pixel = 0; pixel < width * height; ++pixel) {
            header += colour;
        }
        write(name, header);
    }
    void open(const std::vector<std::string>& names, long index) {
        Json urls = Json::array();
        for (const std::string& name : names) {
            urls.push_back(url(name));
        }
        viewer = made("ImageContentViewController");
        phone.message(viewer, "setImageURLs:", {urls});
        phone.message(viewer, "setCurrentIndex:", {index});
        show(viewer);
        pager = phone.message(viewer, "scrollView");
    }
    void openThree(long index) {
        paint("a.png", 400, 300, "\xFF\x01\x01");
        paint("b.png", 30, 60, "\x01\xFF\x01");
        paint("c.png", 8, 8, "\x01\x01\xFF");
        open({"a.png", "b.png", "c.png"}, index);
    }
    std::string line() { return phone.message(phone.message(viewer, "imageInfoLabel"), "text"); }
    double offset() { return phone.message(pager, "contentOffset")["point"][0]; }
    Json page(std::size_t index) { return phone.message(pager, "subviews").at(index); }
    double scale() { return phone.message(page(0), "zoomScale"); }
    Json tint() { return phone.node(pager)["backgroundColor"]; }
    void turnPage(double way) {
        phone.slide({{200, 500}, {200 - way, 500}});
        phone.advance(2);
    }

    Json viewer;
    Json pager;
};

TEST_F(ImageViewer, OpensAtTheChosenImage) {
    openThree(2);
    EXPECT_EQ(offset(), 2 * 390);
    EXPECT_EQ(line(), "图片名: c.png, 像素: 8 × 8, \n宽高比: 1.00, 大小: 203字节");
}

TEST_F(ImageViewer, TellsPixelsRatioAndSize) {
    openThree(0);
    EXPECT_EQ(line(), "图片名: a.png, 像素: 400 × 300, \n宽高比: 1.33, 大小: 360 KB");
}

TEST_F(ImageViewer, TellsPixelsWhateverTheNameSaysOfThem) {
    paint("a@2x.png", 40, 30, "\x01\x01\x01");
    open({"a@2x.png"}, 0);
    EXPECT_NE(line().find("40 × 30"), std::string::npos) << line();
}

TEST_F(ImageViewer, LaysOutLabelPagesAndToolbar) {
    openThree(0);
    const Json bar = phone.message(phone.message(viewer, "navigationController"), "navigationBar");
    const Json frame = phone.message(bar, "frame")["rect"];
    const double top = frame[1].get<double>() + frame[3].get<double>() - 6;
    EXPECT_EQ(phone.node(phone.message(viewer, "imageInfoLabel"))["frame"],
              (Json{70, 45, 320, 42}));
    EXPECT_EQ(phone.node(phone.message(viewer, "toolbar"))["frame"], (Json{0, 789, 390, 50}));
    const double height = 844 - top - 50;
    EXPECT_EQ(phone.node(pager)["frame"], (Json{0, top, 390, height}));
    EXPECT_EQ(phone.node(page(1))["frame"], (Json{390, 0, 390, height}));
    EXPECT_EQ(phone.node(phone.message(page(1), "subviews").at(0))["frame"],
              (Json{5, 5, 380, height - 10}));
}

TEST_F(ImageViewer, LaysItsLineOverThePagesAndTheToolbarOverBoth) {
    openThree(0);
    const Json views = phone.node(phone.message(viewer, "view"))["children"];
    std::vector<Json> order;
    for (const Json& view : views) {
        order.push_back(view["object"]);
    }
    EXPECT_EQ(order,
              (std::vector<Json>{pager["object"], phone.message(viewer, "imageInfoLabel")["object"],
                                 phone.message(viewer, "toolbar")["object"]}));
}

TEST_F(ImageViewer, UpdatesTheLineWhilePagesTurnButBackToTheFirstOnlyAtRest) {
    openThree(0);
    phone.result({{"do", "slide"}, {"path", {{300, 500}, {60, 500}}}, {"stay", true}});
    EXPECT_EQ(line().find("图片名: b.png"), 0U);
    phone.result({{"do", "touch"}, {"phase", "moved"}, {"points", {{0, 295, 500}}}});
    EXPECT_EQ(line().find("图片名: b.png"), 0U) << "the first page's line waits";
    phone.result({{"do", "touch"}, {"phase", "ended"}, {"points", {{0, 295, 500}}}});
    phone.advance(2);
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(line().find("图片名: a.png"), 0U);
}

TEST_F(ImageViewer, ZoomsBetweenOneAndThree) {
    openThree(0);
    phone.result({{"do", "pinch"}, {"at", {195, 400}}, {"scale", 2.0}});
    phone.advance(1);
    EXPECT_GT(scale(), 1.5);
    EXPECT_LT(scale(), 2.5);
    phone.result({{"do", "pinch"}, {"at", {195, 400}}, {"scale", 4.0}});
    phone.advance(1);
    EXPECT_DOUBLE_EQ(scale(), 3);
    phone.result({{"do", "pinch"}, {"at", {195, 400}}, {"scale", 0.1}});
    phone.advance(1);
    EXPECT_DOUBLE_EQ(scale(), 1);
    EXPECT_EQ(offset(), 0);
}

TEST_F(ImageViewer, ChangesTheBackground) {
    openThree(0);
    press("更改背景");
    EXPECT_EQ(tint(), "#000000ff");
    EXPECT_EQ(phone.message(viewer, "isDark"), true);
    press("更改背景");
    EXPECT_EQ(tint(), "#ffffffff");
    press("浏览所有");
    EXPECT_TRUE(phone.swallowed().empty());
}

TEST_F(ImageViewer, AlwaysSharesTheFirstImage) {
    openThree(1);
    phone.events("share");
    press("分享图片");
    const auto shared = phone.events("share");
    ASSERT_EQ(shared.size(), 1U);
    EXPECT_EQ(phone.message(shared[0]["items"][0], "size"), (Json{{"size", {400, 300}}}));
}

TEST_F(ImageViewer, LogsThatThereIsNothingToShare) {
    write("a.png", "no picture");
    open({"a.png"}, 0);
    EXPECT_EQ(line(), "图片名: a.png, 像素: 0 × 0, \n宽高比: nan, 大小: 10字节");
    press("分享图片");
    const auto logged = phone.events("log");
    ASSERT_FALSE(logged.empty());
    EXPECT_EQ(logged.back()["text"], "图片加载失败");
}

TEST_F(ImageViewer, SurvivesHostileListsAndFiles) {
    write("huge.png", "");
    std::filesystem::resize_file(onDisk("huge.png"), 3'221'225'472); // without blocks on the disk
    open({"huge.png", "none.png"}, 7);
    phone.message(viewer, "updateImageInfoWithIndex:", {0});
    EXPECT_EQ(line(), "图片名: huge.png, 像素: 0 × 0, \n宽高比: nan, 大小: 3.22 GB");
    phone.message(viewer, "updateImageInfoWithIndex:", {-1});
    open({}, 0);
    press("分享图片");
    EXPECT_TRUE(phone.swallowed().empty());
}

} // namespace
