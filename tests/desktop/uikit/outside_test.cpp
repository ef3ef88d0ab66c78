// What leaves the application: opened URLs, shared things, sounds, web pages.
#include "tests/desktop/uikit/touch_fixture.hpp"

#include "bindings/audiotoolbox/system_sound.hpp"
#include "bindings/foundation/number.hpp"
#include "bindings/safariservices/safari_view_controller.hpp"
#include "bindings/uikit/activity_view_controller.hpp"
#include "desktop/runtime/event_log.hpp"

namespace {

using namespace ns::literals;

class Outside : public tests::TouchTest {
protected:
    Outside() {
        window_.setRootViewController(root_);
        desktop::run_loop::runUntilIdle();
        desktop::EventLog::shared().take();
    }
    ~Outside() override { window_.setRootViewController(nullptr); }

    /// The value in the one event of that kind since the last question; nil for none or several.
    static objc::Object told(const std::string& kind, ns::String key) {
        desktop::run_loop::runUntilIdle();
        objc::Object value;
        int count = 0;
        for (const auto& event : desktop::EventLog::shared().take()) {
            if (event.kind == kind) {
                value = event.fields.get(key)
                            .send<"retain", objc::Object>()
                            .send<"autorelease", objc::Object>();
                ++count;
            }
        }
        return count == 1 ? value : nullptr;
    }

    objc::Strong<ui::ViewController> root_ = ui::ViewController::make();
};

TEST_F(Outside, OpenedUrlsAreTold) {
    const ui::Application application = ui::Application::sharedApplication();
    const auto url = ns::Url::withString(u"taobao://s/?q=1"_ns);
    EXPECT_TRUE(application.canOpenUrl(url));
    EXPECT_TRUE(application.openUrl(url));
    EXPECT_TRUE(told("openURL", u"url"_ns).isEqual(u"taobao://s/?q=1"_ns));
    int answers = 0;
    const auto count =
        objc::Block<void(bool)>::from([&](bool opened) { answers += opened ? 1 : 10; });
    application.openUrl(url, nullptr, count);
    EXPECT_EQ(answers, 0) << "not before the caller is done";
    EXPECT_TRUE(told("openURL", u"url"_ns));
    application.openUrl(nullptr, nullptr, count);
    EXPECT_FALSE(told("openURL", u"url"_ns));
    EXPECT_EQ(answers, 11);
}

TEST_F(Outside, SoundsAreTold) {
    AudioServicesPlaySystemSound(1519);
    EXPECT_TRUE(told("sound", u"id"_ns).isEqual(ns::Number::from(1519LL)));
}

TEST_F(Outside, AShareSheetTellsItsItemsAndCloses) {
    const auto items = ns::MutableArray::make();
    items.add(u"text"_ns);
    items.add(ns::Url::withString(u"file:///tmp/a"_ns));
    const auto sheet = ui::ActivityViewController::sharing(items);
    int closed = 0;
    sheet.setCompletionWithItemsHandler(ui::ActivityViewController::CompletionWithItems::from(
        [&](ns::String, bool completed, ns::Array, objc::Object) {
            closed += completed ? 10 : 1;
        }));
    sheet.setModalPresentationStyle(ui::ModalPresentation::overCurrentContext);
    root_.present(sheet, true);
    const auto texts = told("share", u"items"_ns).as<ns::Array>();
    ASSERT_EQ(texts.count(), 2U);
    EXPECT_TRUE(texts.at(1).isEqual(u"file:///tmp/a"_ns));
    EXPECT_EQ(sheet.view().convertRect(sheet.view().bounds(), nullptr),
              (CGRect{{0, 57}, {390, 787}}))
        << "a card below the status bar";
    EXPECT_EQ(sheet.view().safeAreaInsets(), (UIEdgeInsets{0, 0, 34, 0}));
    tap({360, 80}); // the close button
    desktop::run_loop::runUntilIdle();
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(root_.presentedViewController());
}

TEST_F(Outside, AWebPageIsToldAndLeft) {
    const auto page =
        sf::SafariViewController::with(ns::Url::withString(u"https://example.com/a"_ns));
    root_.present(page, false);
    EXPECT_TRUE(told("webLoad", u"url"_ns).isEqual(u"https://example.com/a"_ns));
    EXPECT_EQ(root_.presentedViewController(), page);
    tap({30, 69}); // the done button
    desktop::run_loop::runUntilIdle();
    EXPECT_FALSE(root_.presentedViewController());
    EXPECT_ANY_THROW(sf::SafariViewController::with(ns::Url::withString(u"taobao://s"_ns)));
    EXPECT_ANY_THROW(sf::SafariViewController::with(nullptr));
}

} // namespace
