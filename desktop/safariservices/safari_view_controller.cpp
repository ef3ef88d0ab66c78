// The bar over the page.
#include "desktop/safariservices/safari_view_controller.hpp"

#include "bindings/foundation/exception.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/webkit/web_view.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/delegate_messages.hpp"

namespace desktop {
namespace {

using namespace ns::literals;

bool isWeb(ns::Url url) {
    const ns::String scheme =
        url.send<"scheme", ns::String>().send<"lowercaseString", ns::String>();
    return scheme.isEqual(u"http"_ns) || scheme.isEqual(u"https"_ns);
}

} // namespace

sf::SafariViewController SafariViewController::initWithUrl(ns::Url url) {
    if (!isWeb(url)) {
        ns::Exception::with(u"NSInvalidArgumentException"_ns,
                            u"The specified URL has an unsupported scheme. Only HTTP and HTTPS "
                            u"URLs are supported."_ns)
            .raise();
    }
    super<"init", ui::ViewController>();
    url_ = url;
    self().setModalPresentationStyle(ui::ModalPresentation::fullScreen);
    return self();
}

void SafariViewController::viewDidLoad() {
    super<"viewDidLoad">();
    constexpr double barHeight = 44;
    const ui::View view = self().view();
    const CGSize size = view.bounds().size;
    const double top = ScreenGeometry::current().safeArea.top;
    const auto item = ui::NavigationItem::withTitle(url_.host());
    item.setLeftBarButtonItem(ui::BarButtonItem::withSystemItem(
        ui::BarButtonSystemItem::done, self(), objc::selector<"donePressed">()));
    const auto bar = ui::NavigationBar::withFrame({{0, top}, {size.width, barHeight}});
    bar.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth);
    const auto items = ns::MutableArray::make();
    items.add(item);
    bar.setItems(items);
    view.addSubview(bar);
    const double below = top + barHeight;
    const auto page = wk::WebView::withFrame({{0, below}, {size.width, size.height - below}});
    page.setAutoresizingMask(ui::ViewAutoresizing::flexibleWidth |
                             ui::ViewAutoresizing::flexibleHeight);
    page.load(ns::UrlRequest::withUrl(url_));
    view.addSubview(page);
}

void SafariViewController::donePressed() {
    const objc::Strong<ui::ViewController> kept = self();
    kept.dismiss(true);
    tell<"safariViewControllerDidFinish:">(delegate_, self());
}

} // namespace desktop
