// Rows and columns of labels.
#include "bench/support/panel_of_texts.hpp"

#include "bindings/uikit/label.hpp"

namespace bench {

using namespace ns::literals;

ui::View addPanelOfTexts(ui::Window window) {
    const auto panel = ui::View::withFrame({{0, 60}, {390, 610}});
    panel.setBackgroundColor(ui::Color::white());
    for (int row = 0; row < 24; ++row) {
        for (int column = 0; column < 4; ++column) {
            const auto label =
                ui::Label::withFrame({{column * 96.0 + 6, row * 25.0 + 4}, {90, 22}});
            label.setText(row % 2 == 0 ? u"选择 word"_ns : u"复制文本 12"_ns);
            panel.addSubview(label);
        }
    }
    window.addSubview(panel);
    return panel;
}

} // namespace bench
