// Pieces that the applications' screens are made of.
#pragma once

#include "bindings/uikit/label.hpp"
#include "bindings/uikit/view_controller.hpp"

#include <string_view>

namespace desktop::host {

/// The colours of a screen with cards on it.
ui::Color pageColor();
ui::Color cardColor();
ui::Color separatorColor();

/// How a text looks.
struct TextLook {
    double size = 17;
    double weight = ui::Font::regular;
    ui::Color color = ui::Color::label();
    /// 0: as many as it takes.
    long lines = 1;
};

/// Gives a label, or another view that is set up like one, its look; then its text, in UTF-8.
template <class AnyLabel>
AnyLabel dressed(AnyLabel label, std::string_view text, const TextLook& look = {}) {
    label.setFont(ui::Font::system(look.size, look.weight));
    label.setTextColor(look.color);
    label.setNumberOfLines(look.lines);
    label.setText(ns::String::fromUtf8(text));
    return label;
}

/// The label in the font of that style of text, at whatever size the phone's texts have.
ui::Label following(ui::Label label, std::u16string_view style);

/// A box of the cards' colour with round corners.
ui::View cardWithFrame(CGRect frame);

/// A hairline.
ui::View separatorWithFrame(CGRect frame);

/// Adds a navigation bar with a large title, below the status bar; the result is where it ends.
double addNavigationBar(ui::View page, std::string_view title);

/// Shows the controller in a window of the screen's size, which is kept as long as the process
/// lives.
void showInWindow(ui::ViewController controller);

} // namespace desktop::host
