// The screen's picture: when it becomes stale, and what it redraws.
#include "tests/desktop/uikit/uikit_fixture.hpp"

#include "bindings/uikit/application.hpp"
#include "bindings/uikit/label.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/uikit/screen_image.hpp"

namespace {

using namespace ns::literals;
using desktop::PixelRectangle;
using desktop::ScreenImage;

class ScreenImageTest : public tests::UIKitTest {
protected:
    ScreenImageTest() {
        window.setBackgroundColor(ui::Color::white());
        window.makeKeyAndVisible();
    }
    ~ScreenImageTest() override { window.setHidden(true); }

    objc::Strong<ui::Window> window = ui::Window::withFrame(ui::Screen::main().bounds());
};

TEST_F(ScreenImageTest, TellsOnceThatItIsStale) {
    ScreenImage screen(1);
    int calls = 0;
    screen.whenStale([&calls] { ++calls; });
    EXPECT_EQ(screen.refresh(), (std::vector<PixelRectangle>{{0, 0, 390, 844}}));
    EXPECT_TRUE(screen.refresh().empty());
    const auto label = ui::Label::withFrame({{10, 100}, {100, 20}});
    window.addSubview(label);
    label.setText(u"新"_ns);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(screen.isStale());
    EXPECT_FALSE(screen.refresh().empty());
    EXPECT_FALSE(screen.isStale());
    label.setText(u"newer"_ns);
    EXPECT_EQ(calls, 2);
}

} // namespace
