// Places things about the middle of the screen.
#include "library/utilities/panels/panel_parts.hpp"

#include "bindings/uikit/screen.hpp"
#include "library/common/buttons.hpp"
#include "library/common/outline.hpp"

#include <algorithm>

namespace wentra::utilities {
namespace {

using namespace ns::literals;

CGPoint fromMiddle(double right, double below) {
    const CGSize screen = ui::Screen::mainScreen().bounds().size;
    return {screen.width / 2 + right, screen.height / 2 + below};
}

/// On most screens the upper text begins above the panel: its first line is to be seen.
void clearTopEdge(ui::TextView text) {
    constexpr double usual = 8;
    const double hidden = std::max(0.0, -text.frame().origin.y);
    text.setTextContainerInset({usual + hidden, 0, usual, 0});
}

} // namespace

ui::TextView addPanelText(ui::View panel, CGSize size, double below) {
    const auto text = ui::TextView::withFrame({{}, size});
    text.setCenter(fromMiddle(0, below));
    clearTopEdge(text);
    drawOutline(text, {6, 1, ui::Color::lightGray()});
    panel.addSubview(text);
    return text;
}

void addPanelButton(ui::View panel, ns::String title, CGPoint offset, objc::Object target,
                    SEL action) {
    const ButtonLook look{.title = title,
                          .frame = {{}, {100, 30}},
                          .titleColor = ui::Color::white(),
                          .background = ui::Color::blue()};
    const auto button = makeButton(look, target, action);
    button.setCenter(fromMiddle(offset.x, offset.y));
    panel.addSubview(button);
}

void addPanelCloser(ToolScreens& screens) {
    constexpr double lift = 235;
    screens.addCloseButton(u"关闭窗口"_ns, lift);
}

} // namespace wentra::utilities
