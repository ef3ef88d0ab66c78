// Web views: what they tell of the pages they would show.
#include "bindings/uikit/window.hpp"
#include "bindings/webkit/web_view.hpp"
#include "desktop/class.hpp"
#include "desktop/runtime/event_log.hpp"
#include "desktop/runtime/run_loop.hpp"
#include "desktop/webkit/web_content.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

namespace {

using namespace ns::literals;

struct ListenerKind : objc::Kind<ListenerKind, "WebTestListener"> {
    using Kind::Kind;
};

/// Writes down the steps of navigations; may stop them at the first.
class Listener : public desktop::PlatformClass<Listener, ListenerKind> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"webView:didStartProvisionalNavigation:", &Listener::started>(),
            objc::method<"webView:didFinishNavigation:", &Listener::finished>(),
        };
    }
    std::string told;
    bool stops = false;

private:
    void started(wk::WebView view, objc::Object) {
        told += "start ";
        if (stops) {
            view.stopLoading();
        }
    }
    void finished(wk::WebView view, objc::Object) {
        told += view.isLoading() ? "too early " : "finish ";
    }
};

class WebView : public tests::UIKitTest {
protected:
    static void SetUpTestSuite() {
        UIKitTest::SetUpTestSuite();
        Listener::registerClass();
    }
    void SetUp() override {
        desktop::EventLog::shared().take();
        view.setNavigationDelegate(listener);
    }

    objc::Object load(ns::String address) {
        const auto request = ns::MutableUrlRequest::withUrl(ns::Url::withString(address));
        request.setValue(u"1"_ns, u"X-Test"_ns);
        return view.load(request);
    }

    wk::WebView view = wk::WebView::withFrame({{10, 20}, {300, 400}});
    ListenerKind listener = ListenerKind::make();
};

TEST_F(WebView, TellsWhatItWouldLoad) {
    EXPECT_NE(load(u"https://example.com/a"_ns), nullptr);
    EXPECT_TRUE(view.isLoading());
    EXPECT_TRUE(view.url().absoluteString().isEqual(u"https://example.com/a"_ns));
    const auto events = desktop::EventLog::shared().take();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].kind, "webLoad");
    EXPECT_TRUE(events[0].fields.get(u"url"_ns).isEqual(u"https://example.com/a"_ns));
    EXPECT_TRUE(events[0]
                    .fields.get(u"headers"_ns)
                    .assume<ns::Dictionary>()
                    .get(u"X-Test"_ns)
                    .isEqual(u"1"_ns));
    EXPECT_EQ(Listener::of(listener).told, "");
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(Listener::of(listener).told, "start finish ");
    EXPECT_FALSE(view.isLoading());
    EXPECT_EQ(view.load(nullptr), nullptr);
}

TEST_F(WebView, StopsAndBeginsAnew) {
    load(u"https://example.com/a"_ns);
    load(u"https://example.com/b"_ns);
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(Listener::of(listener).told, "start finish ");
    Listener::of(listener).stops = true;
    view.send<"reload", objc::Object>();
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(Listener::of(listener).told, "start finish start ");
}

TEST_F(WebView, IsListedWhileItIsInAWindow) {
    const std::size_t others = desktop::liveWebPages().size();
    {
        const objc::Pool inner;
        const auto window = ui::Window::withFrame({{0, 0}, {390, 844}});
        load(u"https://example.com/a"_ns);
        EXPECT_EQ(desktop::liveWebPages().size(), others);
        window.addSubview(view);
        const auto pages = desktop::liveWebPages();
        ASSERT_EQ(pages.size(), others + 1);
        EXPECT_EQ(pages.back().view, view);
        EXPECT_EQ(pages.back().frame, (CGRect{{10, 20}, {300, 400}}));
        EXPECT_EQ(pages.back().address, "https://example.com/a");
        view.removeFromSuperview();
    }
    EXPECT_EQ(desktop::liveWebPages().size(), others);
}

TEST_F(WebView, NumbersViewsAndWhatTheyLoad) {
    const objc::Pool inner;
    const auto window = ui::Window::withFrame({{0, 0}, {390, 844}});
    window.addSubview(view);
    load(u"https://example.com/a"_ns);
    const auto first = desktop::liveWebPages().back();
    load(u"https://example.com/a"_ns);
    const auto second = desktop::liveWebPages().back();
    EXPECT_EQ(second.number, first.number);
    EXPECT_GT(second.load, first.load);
    const auto other = wk::WebView::withFrame({{0, 0}, {10, 10}});
    window.addSubview(other);
    other.load(ns::UrlRequest::withUrl(ns::Url::withString(u"https://example.com/a"_ns)));
    EXPECT_NE(desktop::liveWebPages().back().number, first.number);
    view.removeFromSuperview();
}

} // namespace
