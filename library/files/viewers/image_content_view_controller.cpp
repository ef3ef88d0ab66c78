// The pager with its pages, the line about an image, and the toolbar.
#include "library/files/viewers/image_content_view_controller.hpp"

#include "bindings/foundation/byte_count_formatter.hpp"
#include "bindings/foundation/log.hpp"
#include "bindings/objc/peer.hpp"
#include "bindings/uikit/image_view.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/navigation_controller.hpp"
#include "bindings/uikit/page_control.hpp"
#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/scroll_view.hpp"
#include "bindings/uikit/toolbar.hpp"
#include "library/common/animated.hpp"
#include "library/common/bar_items.hpp"
#include "library/common/light_background.hpp"
#include "library/common/sharing.hpp"
#include "library/files/regular_file.hpp"
#include "library/files/viewers/image_info.hpp"

#include <cmath>
#include <vector>

namespace wentra::files {
namespace {

using namespace ns::literals;

constexpr double toolbarHeight = 50;

/// Whatever number of pixels the file's name says that a point has.
CGSize pixelsOf(ns::Url url) {
    const ui::Image image = imageOfFile(url.path().utf8());
    const CGSize size = image.size();
    return {size.width * image.scale(), size.height * image.scale()};
}

class ImageContentViewControllerPeer
    : public objc::Peer<ImageContentViewControllerPeer, ImageContentViewController> {
public:
    static constexpr auto methods() {
        using Peer = ImageContentViewControllerPeer;
        return std::array{
            objc::property<"imageURLs", &Peer::urls_>(),
            objc::property<"currentIndex", &Peer::currentIndex_>(),
            objc::property<"scrollView", &Peer::pager_>(),
            objc::property<"pageControl", &Peer::pageControl_>(),
            objc::property<"isDark", &Peer::isDark_>(),
            objc::property<"imageInfoLabel", &Peer::infoLabel_>(),
            objc::property<"toolbar", &Peer::toolbar_>(),
            objc::method<"viewDidLoad", &Peer::viewDidLoad>(),
            objc::method<"prepareUI", &Peer::addLabelAndToolbar>(),
            objc::method<"setupScrollView", &Peer::addPager>(),
            objc::method<"scrollToImageAtIndex:", &Peer::scrollToImage>(),
            objc::method<"updateImageInfoWithIndex:", &Peer::updateInfo>(),
            objc::method<"scrollViewDidScroll:", &Peer::scrolled>(),
            objc::method<"scrollViewDidEndDecelerating:", &Peer::cameToRest>(),
            objc::method<"viewForZoomingInScrollView:", &Peer::viewForZooming>(),
            objc::method<"tapViewAll:", &Peer::viewAll>(),
            objc::method<"tapChangeBackground:", &Peer::changeBackground>(),
            objc::method<"tapShare:", &Peer::share>(),
        };
    }

private:
    void viewDidLoad();
    void addLabelAndToolbar();
    void addLabel();
    void addToolbar();
    void addPager();
    void addPage(ns::Url url, CGRect frame);
    [[nodiscard]] ui::BarButtonItem item(ns::String title, SEL action) const;
    [[nodiscard]] CGRect pagerFrame() const;
    void scrollToImage(long index);
    void updateInfo(long index);
    [[nodiscard]] bool exists(long index) const {
        return index >= 0 && static_cast<unsigned long>(index) < urls_.count();
    }
    /// Pages from the first on, in fractions while they are dragged.
    [[nodiscard]] double position() const;
    void scrolled(ui::ScrollView);
    void cameToRest(ui::ScrollView) { updateInfo(static_cast<long>(position())); }
    [[nodiscard]] ui::View viewForZooming(ui::ScrollView page) const {
        return page == pager_ ? ui::View() : page.subviews().first();
    }

    /// Nobody has thought of what it might show.
    void viewAll(objc::Object) {}
    void changeBackground(objc::Object);
    void share(objc::Object);

    objc::Strong<ns::ArrayOf<ns::Url>> urls_;
    long currentIndex_ = 0;
    objc::Strong<ui::ScrollView> pager_;
    std::vector<objc::Strong<ui::ImageView>> pictures_;
    /// Nothing makes one, so its page is always the first.
    objc::Strong<ui::PageControl> pageControl_;
    bool isDark_ = false;
    objc::Strong<ui::Label> infoLabel_;
    objc::Strong<ui::Toolbar> toolbar_;
    long describedIndex_ = 0;
};

void ImageContentViewControllerPeer::viewDidLoad() {
    super<"viewDidLoad">();
    isDark_ = false;
    self().send<"prepareUI">();
    self().send<"setupScrollView">();
    self().send<"scrollToImageAtIndex:">(currentIndex_);
}

ui::BarButtonItem ImageContentViewControllerPeer::item(ns::String title, SEL action) const {
    return ui::BarButtonItem::withTitle(title, ui::BarButtonStyle::plain, self(), action);
}

void ImageContentViewControllerPeer::addLabelAndToolbar() {
    setLightBackground(self().view(), ui::Color::white());
    addLabel();
    addToolbar();
}

void ImageContentViewControllerPeer::addLabel() {
    const ui::View view = self().view();
    infoLabel_ = ui::Label::withFrame({{70, 45}, {view.bounds().size.width - 70, 42}});
    infoLabel_.setNumberOfLines(0);
    infoLabel_.setTextAlignment(ui::TextAlignment::center);
    infoLabel_.setFont(ui::Font::system(13));
    view.addSubview(infoLabel_);
}

void ImageContentViewControllerPeer::addToolbar() {
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    toolbar_ = ui::Toolbar::withFrame({{0, screen.height - 55}, {screen.width, toolbarHeight}});
    toolbar_.setItems(spread(std::array{
        item(u"浏览所有"_ns, objc::selector<"tapViewAll:">()),
        item(u"更改背景"_ns, objc::selector<"tapChangeBackground:">()),
        item(u"分享图片"_ns, objc::selector<"tapShare:">()),
    }));
    self().view().addSubview(toolbar_);
}

CGRect ImageContentViewControllerPeer::pagerFrame() const {
    const CGSize view = self().view().bounds().size;
    const CGRect bar = self().navigationController().navigationBar().frame();
    const double top = bar.origin.y + bar.size.height - 6;
    return {{0, top}, {view.width, view.height - top - toolbarHeight}};
}

void ImageContentViewControllerPeer::addPager() {
    const CGRect frame = pagerFrame();
    pager_ = ui::ScrollView::withFrame(frame);
    pager_.setPagingEnabled(true);
    // Pages lie beside a notch as they do without one.
    pager_.setContentInsetAdjustmentBehavior(ui::ContentInsetAdjustmentBehavior::never);
    pager_.setDelegate(self());
    self().view().insertSubviewBelow(pager_, infoLabel_); // where bars are low, it lies behind it
    double left = 0;
    for (const ns::Url url : static_cast<ns::ArrayOf<ns::Url>>(urls_)) {
        addPage(url, {{left, 0}, frame.size});
        left += frame.size.width;
    }
    pager_.setContentSize({left, frame.size.height});
}

void ImageContentViewControllerPeer::addPage(ns::Url url, CGRect frame) {
    constexpr double margin = 5;
    const auto page = ui::ScrollView::withFrame(frame);
    page.setMinimumZoomScale(1);
    page.setMaximumZoomScale(3);
    page.setBouncesZoom(true);
    page.setClipsToBounds(false);
    page.setDelegate(self());
    const auto picture = ui::ImageView::withImage(imageOfFile(url.path().utf8()));
    picture.setFrame(
        {{margin, margin}, {frame.size.width - 2 * margin, frame.size.height - 2 * margin}});
    picture.setContentMode(ui::ContentMode::scaleAspectFit);
    page.addSubview(picture);
    pager_.addSubview(page);
    pictures_.emplace_back(picture);
}

void ImageContentViewControllerPeer::scrollToImage(long index) {
    pager_.setContentOffset({self().view().bounds().size.width * static_cast<double>(index), 0},
                            !animated);
    self().send<"updateImageInfoWithIndex:">(index);
}

void ImageContentViewControllerPeer::updateInfo(long index) {
    if (!exists(index)) {
        return;
    }
    const ns::Url url = urls_.at(static_cast<unsigned long>(index));
    const auto size = ns::ByteCountFormatter::stringFromByteCount(
        regularFileSize(url.path().utf8()).value_or(0), ns::ByteCountFormatterCountStyle::file);
    infoLabel_.setText(
        ns::String::from(imageInfo(url.lastPathComponent().utf16(), pixelsOf(url), size.utf16())));
    describedIndex_ = index;
}

double ImageContentViewControllerPeer::position() const {
    const double width = pager_.bounds().size.width;
    return width > 0 ? pager_.contentOffset().x / width : 0;
}

/// On the way back to the first page the line stays as it is until the pages come to rest.
void ImageContentViewControllerPeer::scrolled(ui::ScrollView) {
    const double rounded = std::trunc(position() + 0.5);
    const auto page = static_cast<long>(rounded);
    if (page != pageControl_.currentPage() && page != describedIndex_) {
        updateInfo(page);
    }
}

void ImageContentViewControllerPeer::changeBackground(objc::Object) {
    isDark_ = !isDark_;
    pager_.setBackgroundColor(isDark_ ? ui::Color::black() : ui::Color::white());
}

void ImageContentViewControllerPeer::share(objc::Object) {
    const auto index = static_cast<std::size_t>(pageControl_.currentPage());
    const ui::Image image = index < pictures_.size() ? pictures_[index].image() : ui::Image();
    if (!image) {
        ns::log("图片加载失败");
        return;
    }
    wentra::share(image, self());
}

} // namespace

void registerImageContentViewController() { ImageContentViewControllerPeer::registerClass(); }

} // namespace wentra::files
