// The preview's screen: the page and a button that ends it.
#include "library/toolbox/search/web_preview.hpp"

#include "bindings/uikit/screen.hpp"
#include "library/common/animated.hpp"
#include "library/common/buttons.hpp"
#include "library/toolbox/panel/host_screens.hpp"
#include "library/toolbox/search/search_url.hpp"

namespace wentra::toolbox {

using namespace ns::literals;

void WebPreview::show(ns::Url url) {
    if (!url) {
        return;
    }
    if (screen_.presentingViewController()) { // a preview is there: it shows the other page
        load(url);
        return;
    }
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    constexpr double above = 40;
    constexpr double below = 75;
    page_ = wk::WebView::withFrame({{0, above}, {screen.width, screen.height - above - below}});
    page_.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                              ui::ViewAutoresizing::flexibleHeight);
    load(url);
    screen_ = ui::ViewController::make();
    screen_.view().setBackgroundColor(ui::Color::systemBackground());
    screen_.view().addSubview(page_);
    addCloseButton();
    presentOverHost(self(), screen_);
}

void WebPreview::load(ns::Url url) const {
    const auto address = ns::String::from(webAddress(url.absoluteString().utf16()));
    const auto page = ns::Url::withString(address);
    page_.load(ns::UrlRequest::withUrl(page));
    // Once more, for a page that no cache holds.
    const auto fresh = ns::MutableUrlRequest::withUrl(page);
    fresh.setValue(u"no-cache"_ns, u"Cache-Control"_ns);
    page_.load(fresh);
}

void WebPreview::addCloseButton() const {
    const CGSize size = screen_.view().bounds().size;
    const ButtonLook look{.title = u"关闭预览"_ns,
                          .frame = {{size.width * 0.5 - 45, size.height - 40 - 20}, {90, 40}},
                          .titleColor = ui::Color::black(), // the tint is hard to read on grey
                          .background = ui::Color::lightGray(),
                          .cornerRadius = 6};
    const auto button = makeButton(look, self(), objc::selector<"closeButtonPressed:">());
    button.setAutoresizingMask(ui::ViewAutoresizing::flexibleLeftMargin |
                               ui::ViewAutoresizing::flexibleRightMargin |
                               ui::ViewAutoresizing::flexibleTopMargin);
    screen_.view().addSubview(button);
}

void WebPreview::close(objc::Object /*sender*/) {
    page_.stopLoading();
    page_.setNavigationDelegate(nullptr);
    page_.removeFromSuperview();
    page_ = nullptr;
    screen_.dismiss(animated);
    screen_ = nullptr;
}

} // namespace wentra::toolbox
