// The system's own marks, where each model of phone has room for them.
#include "desktop/uikit/application/status_bar.hpp"
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/screen.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/application/rotation.hpp"
#include "desktop/uikit/application/screen_image.hpp"

namespace {

using desktop::Device;
using desktop::Image;

Image statusBar(const Device& device) {
    desktop::Canvas canvas({device.size.width, device.statusBar}, 1);
    desktop::drawStatusBar(canvas, device, desktop::systemInk(false));
    return canvas.snapshot();
}

/// The first and the last row with ink in those columns; {-1, -1} without any.
std::pair<int, int> inkedRows(const Image& bar, double from, double to) {
    std::pair<int, int> rows{-1, -1};
    for (int y = 0; y < bar.pixelHeight(); ++y) {
        for (int x = static_cast<int>(from); x < static_cast<int>(to); ++x) {
            if (bar.pixel(x, y).alpha > 0.2) {
                rows = {rows.first < 0 ? y : rows.first, y};
            }
        }
    }
    return rows;
}

TEST(StatusBar, KeepsClearOfWhatTakesAPartOfTheScreen) {
    struct Case {
        const char* device;
        double cutout;
        double middle;
        double batteryEnd; ///< from the right edge
    };
    for (const auto& [name, cutout, middle, batteryEnd] : {
             Case{"iPhone SE", 0, 10, 7},
             Case{"iPhone X", 206, 23.5, 14},
             Case{"iPhone 12", 206, 25, 14},
             Case{"iPhone 15", 124, 32, 31},
         }) {
        const Device& device = *desktop::deviceNamed(name);
        const Image bar = statusBar(device);
        const double width = device.size.width;
        const double half = cutout > 0 ? cutout / 2 : 10;
        EXPECT_EQ(inkedRows(bar, width / 2 - half, width / 2 + half).first >= 0, cutout == 0)
            << name << ": the time stands where nothing is in its way";
        const auto [top, bottom] = inkedRows(bar, width - batteryEnd - 20, width);
        EXPECT_NEAR((top + bottom + 1) / 2.0, middle, 0.6) << name;
        EXPECT_GE(inkedRows(bar, width - batteryEnd - 2, width - batteryEnd + 1).first, 0) << name;
        EXPECT_EQ(inkedRows(bar, width - batteryEnd + 1, width).first, -1) << name;
    }
}

class SystemMarks : public tests::UIKitTest {
protected:
    SystemMarks() {
        window_.setBackgroundColor(ui::Color::white());
        window_.makeKeyAndVisible();
    }
    ~SystemMarks() override {
        desktop::rotate(ui::InterfaceOrientation::portrait);
        desktop::exchangeDevice(desktop::usualDevice());
        window_.setHidden(true);
    }

    /// Whether anything dark is in the upper and in the lower edge of the screen.
    static std::pair<bool, bool> marks() {
        desktop::ScreenImage screen(1);
        screen.refresh();
        const Image shown = screen.snapshot();
        const auto isInked = [&shown](int from, int to) {
            for (int y = from; y < to; ++y) {
                for (int x = 0; x < shown.pixelWidth(); ++x) {
                    if (shown.pixel(x, y).red < 0.5) {
                        return true;
                    }
                }
            }
            return false;
        };
        constexpr int edge = 20;
        return {isInked(0, edge), isInked(shown.pixelHeight() - edge, shown.pixelHeight())};
    }

    objc::Strong<ui::Window> window_ = ui::Window::withFrame(ui::Screen::mainScreen().bounds());
};

TEST_F(SystemMarks, AreThoseOfTheModelAndOfHowItIsHeld) {
    using enum ui::InterfaceOrientation;
    struct Case {
        const char* device;
        ui::InterfaceOrientation orientation;
        std::pair<bool, bool> expected;
    };
    for (const auto& [name, orientation, expected] : {
             Case{"iPhone SE", portrait, {true, false}},
             Case{"iPhone SE", landscapeLeft, {false, false}},
             Case{"iPhone X", landscapeLeft, {false, true}},
             Case{"iPhone X", portrait, {true, true}},
         }) {
        desktop::exchangeDevice(*desktop::deviceNamed(name));
        desktop::rotate(orientation);
        EXPECT_EQ(marks(), expected) << name;
    }
}

} // namespace
