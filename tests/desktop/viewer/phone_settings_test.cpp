// What a phone is set to, in the process that comes after.
#include "desktop/viewer/phone_settings.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/traits/screen_traits.hpp"

namespace {

using desktop::ContentSize;
using desktop::host::Options;
using desktop::uikit::Appearance;

class PhoneSettings : public tests::UIKitTest {
protected:
    ~PhoneSettings() override {
        set(desktop::usualDevice(), Appearance::light, ContentSize::large);
    }

    static void set(const desktop::Device& device, Appearance appearance, ContentSize size) {
        desktop::exchangeDevice(device);
        desktop::uikit::setAppearance(appearance);
        desktop::setScreenContentSize(size);
    }
    /// What another process starts with.
    static Options handedOn() {
        Options options;
        desktop::viewer::applySettings(desktop::viewer::presentSettings(), options);
        return options;
    }
};

TEST_F(PhoneSettings, AreHandedOn) {
    set(*desktop::deviceNamed("iPhone 15"), Appearance::dark, ContentSize::accessibilityLarge);
    const Options options = handedOn();
    EXPECT_EQ(options.device.name, "iPhone 15");
    EXPECT_EQ(options.appearance, Appearance::dark);
    EXPECT_EQ(options.textSize, ContentSize::accessibilityLarge);
    set(desktop::usualDevice(), Appearance::light, ContentSize::small);
    EXPECT_EQ(handedOn().appearance, Appearance::light);
    EXPECT_EQ(handedOn().textSize, ContentSize::small);
}

TEST_F(PhoneSettings, OfTheCommandLineStayWhereThereAreNoOthers) {
    Options options;
    options.device = desktop::deviceOfSize({320, 568}, 2);
    options.appearance = Appearance::dark;
    desktop::viewer::applySettings("", options);
    EXPECT_EQ(options.appearance, Appearance::dark);
    desktop::exchangeDevice(options.device);
    desktop::viewer::applySettings(desktop::viewer::presentSettings(), options);
    EXPECT_EQ(options.device.size.width, 320) << "a screen without a name";
}

} // namespace
