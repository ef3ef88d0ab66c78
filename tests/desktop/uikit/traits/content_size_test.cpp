// Text sizes: categories, styles, and what follows them.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/foundation/notification_center.hpp"
#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>

namespace {

using desktop::ContentSize;
using desktop::UIFont;
namespace text_styles = desktop::text_styles;

TEST(ContentSizes, HaveNamesAndConstants) {
    EXPECT_EQ(desktop::contentSizeNamed("large"), ContentSize::large);
    EXPECT_EQ(desktop::contentSizeNamed("unspecified"), std::nullopt);
    EXPECT_EQ(desktop::contentSizeNamed("huge"), std::nullopt);
    EXPECT_EQ(desktop::contentSizeOf(u"UICTContentSizeCategoryAccessibilityXXXL"),
              ContentSize::accessibilityExtraExtraExtraLarge);
    EXPECT_EQ(desktop::categoryOf(ContentSize::extraSmall), u"UICTContentSizeCategoryXS");
}

TEST(TextStyles, GrowWithTheCategory) {
    struct Case {
        std::u16string_view style;
        ContentSize size;
        double points;
    };
    for (const auto& [style, size, points] : {
             Case{text_styles::body, ContentSize::large, 17},
             Case{text_styles::body, ContentSize::unspecified, 17},
             Case{text_styles::body, ContentSize::extraSmall, 14},
             Case{text_styles::body, ContentSize::accessibilityExtraExtraExtraLarge, 53},
             Case{text_styles::subheadline, ContentSize::extraLarge, 17},
             Case{u"UICTFontTextStyleTitle0", ContentSize::large, 34},
             Case{u"no style", ContentSize::large, 17},
         }) {
        EXPECT_EQ(desktop::textStyleNamed(style).sizeIn(size), points);
    }
}

TEST(TextStyles, AreNoSmallerInALargerCategory) {
    for (const char16_t* name :
         {u"UICTFontTextStyleTitle0", u"UICTFontTextStyleTitle1", u"UICTFontTextStyleTitle2",
          u"UICTFontTextStyleTitle3", u"UICTFontTextStyleHeadline", u"UICTFontTextStyleBody",
          u"UICTFontTextStyleCallout", u"UICTFontTextStyleSubhead", u"UICTFontTextStyleFootnote",
          u"UICTFontTextStyleCaption1", u"UICTFontTextStyleCaption2"}) {
        const desktop::TextStyle& style = desktop::textStyleNamed(name);
        EXPECT_EQ(style.name, name);
        EXPECT_TRUE(std::ranges::is_sorted(style.sizes));
    }
    EXPECT_EQ(desktop::textStyleNamed(text_styles::headline).sizes,
              desktop::textStyleNamed(text_styles::body).sizes);
}

class ContentSizeTest : public tests::UIKitTest {
protected:
    void SetUp() override {
        window_.makeKeyAndVisible();
        label_.setText(ns::String::fromUtf8("text"));
        window_.addSubview(label_);
    }
    void TearDown() override { desktop::setScreenContentSize(ContentSize::large); }
    double points() const { return label_.font().pointSize(); }

    objc::Strong<ui::Window> window_ = ui::Window::withFrame({{}, {390, 844}});
    objc::Strong<ui::Label> label_ = ui::Label::withFrame({{10, 100}, {200, 40}});
};

TEST_F(ContentSizeTest, ALabelFollowsWhenItsFontIsThatOfAStyle) {
    label_.setFont(UIFont::preferred(text_styles::body, ContentSize::large));
    desktop::setScreenContentSize(ContentSize::extraLarge);
    EXPECT_EQ(points(), 17) << "it does not adjust";
    label_.send<"setAdjustsFontForContentSizeCategory:">(true);
    EXPECT_EQ(points(), 19);
    desktop::setScreenContentSize(ContentSize::small);
    EXPECT_EQ(points(), 15);
    label_.setFont(ui::Font::system(20));
    desktop::setScreenContentSize(ContentSize::large);
    EXPECT_EQ(points(), 20) << "it is no style's font";
}

TEST_F(ContentSizeTest, AFontIsThatOfTheTraitsOrElseOfTheScreen) {
    const auto body = ns::String::from(text_styles::body);
    const auto sizeIn = [body](ContentSize told) {
        const auto traits =
            ui::TraitCollection::sendClass<"traitCollectionWithPreferredContentSizeCategory:",
                                           ui::TraitCollection>(
                ns::String::from(desktop::categoryOf(told)));
        return ui::Font::sendClass<"preferredFontForTextStyle:compatibleWithTraitCollection:",
                                   ui::Font>(body, traits)
            .pointSize();
    };
    desktop::setScreenContentSize(ContentSize::extraLarge);
    EXPECT_EQ(sizeIn(ContentSize::extraSmall), 14);
    EXPECT_EQ(sizeIn(ContentSize::accessibilityMedium), 28);
    EXPECT_EQ(sizeIn(ContentSize::unspecified), 19);
    EXPECT_EQ((ui::Font::sendClass<"preferredFontForTextStyle:", ui::Font>(body).pointSize()), 19);
}

TEST_F(ContentSizeTest, TheApplicationIsTold) {
    using namespace ns::literals;
    std::string told;
    const auto center = ns::NotificationCenter::defaultCenter();
    const objc::Strong<objc::Object> observer = center.addObserverForName(
        u"UIContentSizeCategoryDidChangeNotification"_ns, nullptr, nullptr,
        objc::Block<void(ns::Notification)>::from([&told](ns::Notification) {
            told = ui::Application::sharedApplication()
                       .send<"preferredContentSizeCategory", ns::String>()
                       .utf8();
        }));
    desktop::setScreenContentSize(ContentSize::extraLarge);
    EXPECT_EQ(told, "UICTContentSizeCategoryXL");
    told.clear();
    desktop::setScreenContentSize(ContentSize::extraLarge);
    EXPECT_EQ(told, "") << "nothing has changed";
    center.send<"removeObserver:">(observer);
}

} // namespace
